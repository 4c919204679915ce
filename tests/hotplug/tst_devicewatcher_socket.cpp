#include "hotplug/devicewatcher_p.h"

#include "hotplug/hotplugtesting.h"

#include <QProcess>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/netlink.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

using testing::FakeKernel;
using testing::SignalLog;
using testing::ueventSockets;

namespace
{

/// Lets the calling thread, and no other, lose the permission to open sockets for notifications.
bool forbidNetlink()
{
    // clang-format off
    sock_filter program[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_socket, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[0])),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_NETLINK, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EACCES),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    // clang-format on
    sock_fprog filter = {sizeof program / sizeof program[0], program};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// Starts a watcher where that is not allowed.
class ForbiddenThread : public QThread
{
public:
    ForbiddenThread() : forbidden(false), started(false), running(false), stopped(false)
    {
    }

    void run() override
    {
        forbidden = forbidNetlink();
        QDeviceWatcher watcher;
        started = watcher.start();
        running = watcher.isRunning();
        stopped = watcher.stop() && !watcher.isRunning();
    }

    bool forbidden;
    bool started;
    bool running;
    bool stopped;
};

/// Allows this process no further descriptor, while it lives.
class NoDescriptors
{
public:
    NoDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit none = m_before;
        const int next = dup(0);
        close(next);
        none.rlim_cur = static_cast<rlim_t>(next);
        setrlimit(RLIMIT_NOFILE, &none);
    }

    ~NoDescriptors()
    {
        setrlimit(RLIMIT_NOFILE, &m_before);
    }

private:
    rlimit m_before;
};

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

/// Interrupts what this thread does after 50 ms, without letting it go on afterwards.
void interruptSoon()
{
    struct sigaction action;
    memset(&action, 0, sizeof action);
    action.sa_handler = interrupted;
    sigaction(SIGALRM, &action, 0);
    const itimerval once = {{0, 0}, {0, 50000}};
    setitimer(ITIMER_REAL, &once, 0);
}

QSocketNotifier* notifierOf(const QObject& watcherPrivate)
{
    return watcherPrivate.findChild<QSocketNotifier*>();
}

} // namespace

class tst_devicewatcher_socket : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsStopped();
    void socketIsOpenedAsItMust();
    void initLeavesTheNotifierDisabled();
    void startEnablesTheNotifier();
    void stopBeforeStart();
    void startAndStop();
    void startWhileRunningStopsFirst();
    void destructionWhileRunning();
    void manyStartsAndStopsLeaveNothing();
    void secondWatcherOfTheProcess();
    void noDescriptorsLeft();
    void noPermission();
    void childrenDoNotInheritTheSocket();
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

void tst_devicewatcher_socket::startsStopped()
{
    QObject parent;
    QDeviceWatcher* watcher = new QDeviceWatcher(&parent);
    QCOMPARE(watcher->parent(), &parent);
    QVERIFY(!watcher->isRunning());
    QCOMPARE(ueventSockets().size(), 0);
}

void tst_devicewatcher_socket::socketIsOpenedAsItMust()
{
    QDeviceWatcher watcher;
    QVERIFY(watcher.start());
    QCOMPARE(ueventSockets().size(), 1);
    const int descriptor = ueventSockets().at(0);

    sockaddr_nl address;
    memset(&address, 0, sizeof address);
    socklen_t length = sizeof address;
    QCOMPARE(getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &length), 0);
    QCOMPARE(static_cast<int>(length), 12);
    QCOMPARE(static_cast<int>(address.nl_pid), static_cast<int>(getpid()));
    QCOMPARE(static_cast<int>(address.nl_groups), 1);

    int type = 0;
    length = sizeof type;
    QCOMPARE(getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &length), 0);
    QCOMPARE(type, static_cast<int>(SOCK_DGRAM));
    if (geteuid() != 0)
        CWIDGET_SKIP("not root: the size of the receive buffer is the system's");
    int size = 0;
    length = sizeof size;
    QCOMPARE(getsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &size, &length), 0);
    QCOMPARE(size, 2 * 16777216); // the kernel doubles it for its bookkeeping
}

void tst_devicewatcher_socket::initLeavesTheNotifierDisabled()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    QVERIFY(!notifierOf(socket));
    QVERIFY(socket.init());
    QVERIFY(notifierOf(socket));
    QVERIFY(!notifierOf(socket)->isEnabled());
    QCOMPARE(notifierOf(socket)->type(), QSocketNotifier::Read);
    QCOMPARE(static_cast<int>(notifierOf(socket)->socket()), ueventSockets().at(0));
    QVERIFY(socket.init()); // again, and nothing is lost
    QCOMPARE(ueventSockets().size(), 1);
    QVERIFY(!notifierOf(socket)->isEnabled());
}

void tst_devicewatcher_socket::startEnablesTheNotifier()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    QVERIFY(socket.start());
    QVERIFY(notifierOf(socket)->isEnabled());
    QVERIFY(socket.stop());
    QVERIFY(!notifierOf(socket)->isEnabled());
    QCOMPARE(ueventSockets().size(), 0);
}

void tst_devicewatcher_socket::stopBeforeStart()
{
    testing::Messages messages;
    const int before = testing::openDescriptors();
    QDeviceWatcher watcher;
    QVERIFY(watcher.stop());
    QVERIFY(watcher.stop());
    QVERIFY(!watcher.isRunning());
    QDeviceWatcherPrivate socket(&watcher);
    QVERIFY(socket.stop());
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::startAndStop()
{
    testing::Messages messages;
    const int before = testing::openDescriptors();
    QDeviceWatcher watcher;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(watcher.start());
        QVERIFY(watcher.isRunning());
        QCOMPARE(ueventSockets().size(), 1);
        QVERIFY(watcher.stop());
        QVERIFY(!watcher.isRunning());
        QVERIFY(watcher.stop());
        QCOMPARE(ueventSockets().size(), 0);
    }
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::startWhileRunningStopsFirst()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    for (int i = 0; i < 5; ++i)
        QVERIFY(watcher.start());
    QVERIFY(watcher.isRunning());
    QCOMPARE(ueventSockets().size(), 1);
    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("add@/x"));
    QVERIFY(testing::waitUntil([&] { return !log.entries.isEmpty(); }));
    QCOMPARE(log.entries, QStringList(QLatin1String("added:add@/x"))); // once, not five times
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::destructionWhileRunning()
{
    testing::Messages messages;
    const int before = testing::openDescriptors();
    for (int i = 0; i < 100; ++i) {
        QDeviceWatcher watcher;
        watcher.start();
        QCOMPARE(ueventSockets().size(), 1);
        if (i % 2)
            QCoreApplication::processEvents();
    }
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::manyStartsAndStopsLeaveNothing()
{
    testing::Messages messages;
    const int before = testing::openDescriptors();
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(socket.start());
        if (i % 10 == 0)
            QCoreApplication::processEvents();
        QVERIFY(socket.stop());
    }
    QCOMPARE(testing::openDescriptors(), before);
    QVERIFY(socket.findChildren<QSocketNotifier*>().size() <= 1);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::secondWatcherOfTheProcess()
{
    testing::Messages messages;
    QDeviceWatcher first;
    QDeviceWatcher second;
    SignalLog log(&first);
    QVERIFY(first.start());
    QCOMPARE(messages.warnings(), QStringList());
    QVERIFY(second.start()); // deliberately true
    QVERIFY(second.isRunning());
    QCOMPARE(messages.warnings(),
             QStringList(QLatin1String("bind failed: Address already in use")));
    QCOMPARE(ueventSockets().size(), 1);

    FakeKernel kernel(ueventSockets().at(0));
    QVERIFY(kernel.send("add@/x"));
    QVERIFY(testing::waitUntil([&] { return !log.entries.isEmpty(); }));
    QVERIFY(second.stop());
    QVERIFY(!second.isRunning());
    messages.clear();
    first.stop();
    QVERIFY(second.start()); // now it can have the port
    QCOMPARE(ueventSockets().size(), 1);
    QCOMPARE(messages.warnings(), QStringList());

    QDeviceWatcherPrivate third(&first);
    QVERIFY(!third.start());
    QVERIFY(!third.init());
    QVERIFY(third.stop());
    QCOMPARE(ueventSockets().size(), 1);
}

void tst_devicewatcher_socket::noDescriptorsLeft()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    {
        NoDescriptors none;
        QVERIFY(watcher.start());
    }
    QVERIFY(watcher.isRunning());
    QCOMPARE(messages.warnings(),
             QStringList(QLatin1String("error getting socket: Too many open files")));
    QCOMPARE(ueventSockets().size(), 0);
    QCoreApplication::processEvents();
    messages.clear();
    QVERIFY(watcher.start());
    QCOMPARE(ueventSockets().size(), 1);
    {
        NoDescriptors none;
        QVERIFY(watcher.start()); // gives back its own first, and gets it again
    }
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(ueventSockets().size(), 1);
}

void tst_devicewatcher_socket::noPermission()
{
    testing::Messages messages;
    ForbiddenThread thread;
    thread.start();
    thread.wait();
    if (!thread.forbidden)
        CWIDGET_SKIP("no permission to take away permissions");
    QCOMPARE(messages.warnings(),
             QStringList(QLatin1String("error getting socket: Permission denied")));
    QVERIFY(thread.started);
    QVERIFY(thread.running);
    QVERIFY(thread.stopped);
    QDeviceWatcher watcher; // the others may as before
    watcher.start();
    QCOMPARE(ueventSockets().size(), 1);
}

void tst_devicewatcher_socket::childrenDoNotInheritTheSocket()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    watcher.start();
    QProcess child;
    child.start(QLatin1String("sleep"), QStringList(QLatin1String("100")));
    QVERIFY(child.waitForStarted());
    watcher.stop();
    watcher.start(); // would find the port in use
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(ueventSockets().size(), 1);
    child.kill();
    child.waitForFinished();
}

void tst_devicewatcher_socket::datagramsBecomeSignals()
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

void tst_devicewatcher_socket::datagramIsCutAtItsLimit()
{
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    watcher.start();
    FakeKernel kernel(ueventSockets().at(0));
    const int lengths[] = {4095, 4096, 4097, 8192, 60000, 12};
    for (size_t i = 0; i < sizeof lengths / sizeof lengths[0]; ++i) {
        log.entries.clear();
        QVERIFY(kernel.send("remove@" + QByteArray(lengths[i] - 7, 'x')));
        QVERIFY(testing::waitUntil([&] { return !log.entries.isEmpty(); }));
        QCOMPARE(log.entries.at(0), QString::fromLatin1("removed:remove@") +
                                        QString(qMin(lengths[i], 4096) - 7, QLatin1Char('x')));
    }
}

void tst_devicewatcher_socket::emptyDatagramsAreNoNotifications()
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

void tst_devicewatcher_socket::nothingToReadIsNoNotification()
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

void tst_devicewatcher_socket::interruptedReadIsNoNotification()
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

void tst_devicewatcher_socket::closedSocketIsNotRead()
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

void tst_devicewatcher_socket::descriptorClosedByOthers()
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

void tst_devicewatcher_socket::slotsMayStop()
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

void tst_devicewatcher_socket::slotsMayStopAndStart()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    SignalLog log(&watcher);
    Switch again(&watcher, true);
    watcher.start();
    for (int i = 1; i <= 20; ++i) {
        QCOMPARE(ueventSockets().size(), 1);
        FakeKernel kernel(ueventSockets().at(0));
        QVERIFY(kernel.send("change@/x")); // deletes the notifier that is just telling it
        QVERIFY(testing::waitUntil([&] { return log.entries.contains("changed:change@/x"); }));
        log.entries.clear();
        QVERIFY(watcher.isRunning());
    }
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_socket::slotsMayRunAnEventLoop()
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

QTEST_MAIN(tst_devicewatcher_socket)
#include "tst_devicewatcher_socket.moc"
