// Preloaded into the tests on an emulated processor: answers like an old kernel that no process can
// be waited for by a file descriptor. QEMU 7 passes that question on to its own kernel, but refuses
// to start such a process; Qt, believing the answer, takes the refusal's -1 for the number of a
// running process, and kills every other one in its place.

#include <cerrno>
#include <cstdarg>
#include <cstdlib>

#include <dlfcn.h>
#include <sys/syscall.h>

namespace
{

const long byDescriptor = 3; // P_PIDFD of newer headers

// Programs of the build machine's processor, which tests start as well, cannot load this.
__attribute__((constructor)) void forgetPreloading()
{
    unsetenv("LD_PRELOAD");
}

} // namespace

extern "C" long syscall(long number, ...)
{
    typedef long (*Function)(long, ...);
    static const Function real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "syscall"));
    long arguments[6];
    va_list list;
    va_start(list, number);
    for (long& argument : arguments)
        argument = va_arg(list, long);
    va_end(list);
    if (number == SYS_waitid && arguments[0] == byDescriptor) {
        errno = EINVAL;
        return -1;
    }
    return real(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4],
                arguments[5]);
}
