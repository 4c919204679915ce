#include "hotplug/devicewatcher_p.h"

#include "hotplug/hotplugtesting.h"

#include <QThread>

#include <cstdlib>
#include <new>

// A receiver may be destroyed by its thread at the very moment when the watcher has found it alive
// and makes the event for it. So that this moment can be hit, the making of an event stops here.

namespace
{

QAtomicInt s_armed;     // the next event is made slowly
QAtomicInt s_making;    // it is being made
QAtomicInt s_destroyed; // the receiver's destructor has returned
QAtomicInt s_early;     // it had while the event was still being made

int valueOf(QAtomicInt& number)
{
    return number.fetchAndAddOrdered(0);
}

class Pause : public QThread
{
public:
    static void forMilliseconds(unsigned long time)
    {
        msleep(time);
    }
};

void makeSlowly()
{
    s_making.fetchAndStoreOrdered(1);
    for (int i = 0; i < 100 && !valueOf(s_destroyed); ++i)
        Pause::forMilliseconds(1);
    s_early.fetchAndStoreOrdered(valueOf(s_destroyed));
}

/// Destroys a receiver as soon as an event for it is being made.
class Destroyer : public QThread
{
public:
    explicit Destroyer(QObject* receiver) : m_receiver(receiver)
    {
    }

    void run() override
    {
        while (!valueOf(s_making))
            yieldCurrentThread();
        delete m_receiver;
        s_destroyed.fetchAndStoreOrdered(1);
    }

private:
    QObject* m_receiver;
};

} // namespace

void* operator new(std::size_t size)
{
    void* memory = std::malloc(size);
    if (!memory)
        std::abort();
    if (size == sizeof(QDeviceChangeEvent) && s_armed.testAndSetOrdered(1, 0))
        makeSlowly();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

class tst_devicewatcher_race : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void destructionWaitsForTheEvent_data();
    void destructionWaitsForTheEvent();
};

void tst_devicewatcher_race::destructionWaitsForTheEvent_data()
{
    QTest::addColumn<int>("times");
    QTest::newRow("added once") << 1;
    QTest::newRow("added three times") << 3;
}

void tst_devicewatcher_race::destructionWaitsForTheEvent()
{
    QFETCH(int, times);
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QObject* receiver = new QObject;
    Destroyer destroyer(receiver);
    receiver->moveToThread(&destroyer);
    for (int i = 0; i < times; ++i)
        parser.appendEventReceiver(receiver);
    s_making.fetchAndStoreOrdered(0);
    s_destroyed.fetchAndStoreOrdered(0);
    s_early.fetchAndStoreOrdered(0);
    destroyer.start();
    // On the way to the event, nothing else of its size is made by operator new.
    const QByteArray line("add@/devices/x");
    s_armed.fetchAndStoreOrdered(1);
    parser.parseLine(line);
    destroyer.wait();
    QCOMPARE(valueOf(s_armed), 0); // the moment was hit
    QCOMPARE(valueOf(s_making), 1);
    QCOMPARE(valueOf(s_early), 0);
    QCOMPARE(valueOf(s_destroyed), 1);
    parser.parseLine(line); // and nothing is left of it
    QCoreApplication::sendPostedEvents();
}

QTEST_MAIN(tst_devicewatcher_race)
#include "tst_devicewatcher_race.moc"
