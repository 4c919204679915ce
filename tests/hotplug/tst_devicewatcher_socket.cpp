#include "hotplug/devicewatcher_p.h"
#include "support/rows.h"

#include "hotplug/hotplugtesting.h"

#include <QProcess>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include <linux/filter.h>
#include <linux/netlink.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
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
    void manyStartsAndStopsLeaveDisabledNotifiers();
    void closedSocketIsNotRead();
    void secondWatcherOfTheProcess();
    void noDescriptorsLeft();
    void noPermission();
    void childrenDoNotInheritTheSocket();
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

void tst_devicewatcher_socket::manyStartsAndStopsLeaveDisabledNotifiers()
{
    testing::Messages messages;
    const int before = testing::openDescriptors();
    QDeviceWatcher watcher;
    QScopedPointer<QDeviceWatcherPrivate> socket(new QDeviceWatcherPrivate(&watcher));
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(socket->start());
        if (i % 10 == 0)
            QCoreApplication::processEvents();
        QVERIFY(socket->stop());
    }
    QCOMPARE(testing::openDescriptors(), before);
    const QList<QSocketNotifier*> notifiers = socket->findChildren<QSocketNotifier*>();
    QCOMPARE(static_cast<int>(notifiers.size()), 1000);
    for (int i = 0; i < notifiers.size(); ++i) {
        const testing::InRow inRow(i);
        QVERIFY(!notifiers.at(i)->isEnabled());
    }
    const QPointer<QSocketNotifier> first(notifiers.first());
    const QPointer<QSocketNotifier> last(notifiers.last());
    socket.reset();
    QVERIFY(!first);
    QVERIFY(!last);
    QCOMPARE(messages.warnings(), QStringList());
}

/// The number of a closed socket may be that of another file by then.
void tst_devicewatcher_socket::closedSocketIsNotRead()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    testing::SignalLog log(&watcher);
    socket.parseDeviceInfo();
    QVERIFY(socket.start());
    const int number = ueventSockets().at(0);
    QVERIFY(socket.stop());
    int pipeEnds[2];
    QCOMPARE(pipe(pipeEnds), 0);
    QCOMPARE(dup2(pipeEnds[0], number), number);
    QCOMPARE(static_cast<int>(write(pipeEnds[1], "add@/x", 6)), 6);
    socket.parseDeviceInfo();
    char left[8];
    QCOMPARE(static_cast<int>(read(number, left, sizeof left)), 6);
    QCOMPARE(log.entries, QStringList());
    close(pipeEnds[1]);
    close(number);
    if (pipeEnds[0] != number)
        close(pipeEnds[0]);
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

QTEST_MAIN(tst_devicewatcher_socket)
#include "tst_devicewatcher_socket.moc"
