// Tells the Thread sanitizer what orders two threads inside Qt, which is not built with it: its
// locks, and that all that a thread did comes before the return of QThread::wait(). Without this,
// what a lock protects is reported as a race, and whatever comes to lie where an ended thread's
// object was.
//
// The functions here stand before those of the libraries and call them.

#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>

#include <dlfcn.h>
#include <pthread.h>
#include <sanitizer/tsan_interface.h>

namespace
{

char s_ended; // stands for the end of a thread

template <typename Function>
Function next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

/// A thread of Qt wakes those that wait for its end in this way, as the last that it does under its
/// lock.
extern "C" int pthread_cond_broadcast(pthread_cond_t* condition)
{
    typedef int (*Broadcast)(pthread_cond_t*);
    static const Broadcast broadcast = next<Broadcast>("pthread_cond_broadcast");
    __tsan_release(&s_ended);
    return broadcast(condition);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    typedef bool (*Wait)(QThread*, QDeadlineTimer);
    static const Wait wait = next<Wait>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = wait(this, deadline);
    if (ended)
        __tsan_acquire(&s_ended);
    return ended;
}

void QMutex::lock()
{
    typedef void (*Lock)(QMutex*);
    static const Lock lock = next<Lock>("_ZN6QMutex4lockEv");
    lock(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    typedef void (*Unlock)(QMutex*);
    static const Unlock unlock = next<Unlock>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    unlock(this);
}
