#include "hotplug/hotplugtesting.h"

#include <QDir>

#include <cerrno>

#include <fcntl.h>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace testing
{

namespace
{

const CWidgetStyle::DeviceType kinds[] = {CWidgetStyle::DeviceKeyboard, CWidgetStyle::DeviceMouse,
                                          CWidgetStyle::DeviceStorage};

int socketOption(int descriptor, int option)
{
    int value = -1;
    socklen_t length = sizeof value;
    return getsockopt(descriptor, SOL_SOCKET, option, &value, &length) == 0 ? value : -1;
}

QStringList descriptors()
{
    return QDir(QLatin1String("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

QList<int> ueventSockets()
{
    QList<int> sockets;
    const QStringList numbers = descriptors();
    for (int i = 0; i < numbers.size(); ++i) {
        const int descriptor = numbers.at(i).toInt();
        if (socketOption(descriptor, SO_DOMAIN) == AF_NETLINK &&
            socketOption(descriptor, SO_PROTOCOL) == NETLINK_KOBJECT_UEVENT)
            sockets.append(descriptor);
    }
    return sockets;
}

int openDescriptors()
{
    return static_cast<int>(descriptors().size());
}

QByteArray datagram(const char* text)
{
    return QByteArray(text).replace('|', '\0');
}

void setAll(bool available)
{
    for (int i = 0; i < 3; ++i)
        CWidgetStyle::setDeviceAvailable(kinds[i], available);
}

QString registry()
{
    QString letters;
    for (int i = 0; i < 3; ++i) {
        if (CWidgetStyle::isDeviceAvailable(kinds[i]))
            letters += QLatin1Char("kms"[i]);
    }
    return letters;
}

bool hasChildProcesses()
{
    siginfo_t info;
    for (int waited = 0; waited <= testcompat::reapingTime(); waited += 10) {
        if (waited > 0)
            QTest::qWait(10);
        // What has ended is only looked at: it is not for the test to tidy up.
        if (waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD)
            return false;
    }
    return true;
}

// ---- FakeKernel

FakeKernel::FakeKernel(int watcherSocket) : m_end(-1)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends) != 0)
        qFatal("no pair of sockets");
    if (dup3(ends[0], watcherSocket, O_CLOEXEC) == -1)
        qFatal("no watcher's socket to take over");
    close(ends[0]);
    m_end = ends[1];
}

FakeKernel::~FakeKernel()
{
    close(m_end);
}

bool FakeKernel::send(const QByteArray& datagram)
{
    return ::send(m_end, datagram.constData(), static_cast<size_t>(datagram.size()), 0) ==
           datagram.size();
}

// ---- SignalLog

SignalLog::SignalLog(QDeviceWatcher* watcher)
{
    connect(watcher, SIGNAL(deviceAdded(QString)), SLOT(added(QString)));
    connect(watcher, SIGNAL(deviceRemoved(QString)), SLOT(removed(QString)));
    connect(watcher, SIGNAL(deviceChanged(QString)), SLOT(changed(QString)));
}

void SignalLog::added(const QString& dev)
{
    entries.append(QLatin1String("added:") + dev);
}

void SignalLog::removed(const QString& dev)
{
    entries.append(QLatin1String("removed:") + dev);
}

void SignalLog::changed(const QString& dev)
{
    entries.append(QLatin1String("changed:") + dev);
}

// ---- Receiver

Receiver::Receiver(const QString& name, QStringList* log) : m_name(name), m_log(log)
{
}

bool Receiver::event(QEvent* event)
{
    if (event->type() != QDeviceChangeEvent::registeredType())
        return QObject::event(event);
    const QDeviceChangeEvent* change = static_cast<QDeviceChangeEvent*>(event);
    m_log->append(QString::fromLatin1("%1:%2:%3")
                      .arg(m_name)
                      .arg(static_cast<int>(change->action()))
                      .arg(change->device()));
    return true;
}

} // namespace testing
