#include "hotplug/devicewatcher_p.h"
#include "support/rows.h"

#include "hotplug/hotplugtesting.h"

#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

using testing::FakeKernel;
using testing::SignalLog;
using testing::ueventSockets;

namespace
{

/// Stops, or stops and starts, a watcher when it says something.
class Switch : public QObject
{
    Q_OBJECT

public:
    Switch(QDeviceWatcher* watcher, bool startAgain) : m_watcher(watcher), m_startAgain(startAgain)
    {
        connect(watcher, SIGNAL(deviceChanged(QString)), SLOT(flip()));
    }

public Q_SLOTS:
    void flip()
    {
        m_watcher->stop();
        if (m_startAgain)
            m_watcher->start();
    }

private:
    QDeviceWatcher* m_watcher;
    bool m_startAgain;
};

/// Runs an event loop of its own within the first notification.
class Nested : public QObject
{
    Q_OBJECT

public:
    Nested(FakeKernel* kernel, SignalLog* log) : m_kernel(kernel), m_log(log), m_done(false)
    {
    }

public Q_SLOTS:
    void run()
    {
        if (m_done)
            return;
        m_done = true;
        m_kernel->send("remove@/inner");
        testing::waitUntil([this] { return m_log->entries.size() >= 2; });
    }

private:
    FakeKernel* m_kernel;
    SignalLog* m_log;
    bool m_done;
};

void interrupted(int)
{
}

/// Interrupts what this thread does after 50 ms; what it interrupts is not resumed.
void interruptSoon()
{
    struct sigaction action;
    memset(&action, 0, sizeof action);
    action.sa_handler = interrupted;
    sigaction(SIGALRM, &action, nullptr);
    const itimerval once = {{0, 0}, {0, 50000}};
    setitimer(ITIMER_REAL, &once, nullptr);
}

} // namespace

class tst_devicewatcher_reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void datagramsBecomeSignals();
    void datagramIsCutAtItsLimit();
    void emptyDatagramsAreNoNotifications();
    void nothingToReadIsNoNotification();
    void interruptedReadIsNoNotification();
    void closedSocketIsNotRead();
    void descriptorClosedByOthers();
    void slotsMayStop();
    void slotsMayStopAndStart();
    void slotsMayRunAnEventLoop();
};

void tst_devicewatcher_reading::datagramsBecomeSignals()
{
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    testing::Receiver receiver(QLatin1String("r"), &log.entries);
    watcher.appendEventReceiver(&receiver);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send(testing::datagram("add@/devices/x|ACTION=add|SUBSYSTEM=usb|")));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 2; }));
    QVERIFY(kernel.send(testing::datagram("bind@/devices/x|ACTION=bind|")));
    QVERIFY(kernel.send(QByteArray(100, '\0')));
    QVERIFY(kernel.send("no at sign"));
    QVERIFY(kernel.send(testing::datagram("CHANGE@/devices/y| A=1 |")));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 4; }));
    QCOMPARE(log.entries.join(QLatin1String(" ")),
             QString::fromLatin1("added:add@/devices/xACTION=addSUBSYSTEM=usb "
                                 "r:0:add@/devices/xACTION=addSUBSYSTEM=usb "
                                 "changed:CHANGE@/devices/yA=1 r:2:CHANGE@/devices/yA=1"));
}

void tst_devicewatcher_reading::datagramIsCutAtItsLimit()
{
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    const int lengths[] = {4095, 4096, 4097, 8192, 60000, 12};
    for (size_t i = 0; i < sizeof lengths / sizeof lengths[0]; ++i) {
        const testing::InRow inRow(i);
        log.entries.clear();
        QVERIFY(kernel.send("remove@" + QByteArray(lengths[i] - 7, 'x')));
        QVERIFY(testing::waitUntil([&] { return !log.entries.isEmpty(); }));
        QCOMPARE(log.entries.at(0), QString::fromLatin1("removed:remove@") +
                                        QString(qMin(lengths[i], 4096) - 7, QLatin1Char('x')));
    }
}

void tst_devicewatcher_reading::emptyDatagramsAreNoNotifications()
{
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("add@/x"));
    for (int i = 0; i < 10; ++i)
        QVERIFY(kernel.send(QByteArray()));
    QVERIFY(kernel.send("remove@/x"));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() >= 2; }));
    QCOMPARE(log.entries.join(QLatin1String(" ")),
             QString::fromLatin1("added:add@/x removed:remove@/x"));
}

void tst_devicewatcher_reading::nothingToReadIsNoNotification()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    SignalLog log(&watcher);
    socket.parseDeviceInfo(); // never opened
    QVERIFY(socket.start());
    {
        const int flags = fcntl(ueventSockets().at(0), F_GETFL);
        QVERIFY(flags & O_NONBLOCK); // of the real socket; that of the test is a pair's end
    }
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("add@/x"));
    for (int i = 0; i < 100; ++i)
        socket.parseDeviceInfo(); // the first one gets it, the others find nothing
    QCOMPARE(log.entries, QStringList(QLatin1String("added:add@/x")));
    QVERIFY(kernel.send("change@/x"));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 2; }));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_reading::interruptedReadIsNoNotification()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    SignalLog log(&watcher);
    QVERIFY(socket.start());
    const int descriptor = ueventSockets().at(0);
    FakeKernel kernel(descriptor);
    QVERIFY(kernel.send("add@/x"));
    socket.parseDeviceInfo();
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    interruptSoon();
    socket.parseDeviceInfo(); // waits for bytes, and gets the signal
    QCOMPARE(log.entries.size(), 1);
    QVERIFY(kernel.send("add@/y"));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 2; }));
    QCOMPARE(log.entries.last(), QString::fromLatin1("added:add@/y"));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_reading::closedSocketIsNotRead()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    SignalLog log(&watcher);
    QVERIFY(socket.start());
    const int number = ueventSockets().at(0);
    QVERIFY(socket.stop());
    int ends[2]; // someone else's, under the number that the socket had
    QCOMPARE(socketpair(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0, ends), 0);
    QVERIFY(ends[0] == number || ends[1] == number);
    const int other = ends[0] == number ? ends[1] : ends[0];
    QCOMPARE(static_cast<int>(write(other, "add@/x", 6)), 6);
    socket.parseDeviceInfo();
    QCOMPARE(log.entries, QStringList());
    char bytes[16];
    QCOMPARE(static_cast<int>(read(number, bytes, sizeof bytes)), 6); // left alone
    close(ends[0]);
    close(ends[1]);
}

void tst_devicewatcher_reading::descriptorClosedByOthers()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    watcher.start();
    close(ueventSockets().at(0));
    for (int i = 0; i < 10; ++i)
        QTest::qWait(1);
    const int said = static_cast<int>(messages.warnings().size());
    QVERIFY(said <= 1); // Qt's own, which then switches the notifier off
    for (int i = 0; i < 10; ++i)
        QTest::qWait(1);
    QCOMPARE(static_cast<int>(messages.warnings().size()), said);
    messages.clear();
    watcher.start();
    QCOMPARE(ueventSockets().size(), 1);
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("add@/x"));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 1; }));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_reading::slotsMayStop()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    Switch off(&watcher, false);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("change@/x"));
    QVERIFY(kernel.send("change@/y"));
    QVERIFY(testing::waitUntil([&] { return !watcher.isRunning(); }));
    QTest::qWait(20);
    QCOMPARE(log.entries, QStringList(QLatin1String("changed:change@/x")));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_reading::slotsMayStopAndStart()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    Switch again(&watcher, true);
    watcher.start();
    for (int i = 1; i <= 20; ++i) {
        QCOMPARE(ueventSockets().size(), 1);
        FakeKernel kernel(ueventSockets().at(0));
        QVERIFY(kernel.send("change@/x")); // the notifier that tells it is replaced
        QVERIFY(testing::waitUntil([&] { return log.entries.contains("changed:change@/x"); }));
        log.entries.clear();
        QVERIFY(watcher.isRunning());
    }
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_reading::slotsMayRunAnEventLoop()
{
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    testing::Receiver receiver(QLatin1String("r"), &log.entries);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    Nested nested(&kernel, &log);
    connect(&watcher, SIGNAL(deviceAdded(QString)), &nested, SLOT(run()));
    watcher.appendEventReceiver(&receiver);
    QVERIFY(kernel.send(testing::datagram("add@/outer|A=1|")));
    QVERIFY(testing::waitUntil([&] { return log.entries.size() == 4; }));
    QCOMPARE(log.entries.at(0), QString::fromLatin1("added:add@/outerA=1"));
    QCOMPARE(log.entries.at(1), QString::fromLatin1("removed:remove@/inner"));
    QVERIFY(log.entries.contains(QLatin1String("r:0:add@/outerA=1")));
    QVERIFY(log.entries.contains(QLatin1String("r:1:remove@/inner")));
}

QTEST_MAIN(tst_devicewatcher_reading)
#include "tst_devicewatcher_reading.moc"
