#include "hotplug/devicewatcher.h"

#include "hotplug/devicewatcher_p.h"
#include "hotplug/uevent_p.h"
#include "style/table_p.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

// ---- QDeviceChangeEvent

/// An event of the registered type that tells that \a action happened to \a device.
QDeviceChangeEvent::QDeviceChangeEvent(Action action, const QString& device)
    : QEvent(registeredType()), m_action(action), m_device(device)
{
}

QDeviceChangeEvent::~QDeviceChangeEvent()
{
}

/// What happened to the device.
QDeviceChangeEvent::Action QDeviceChangeEvent::action() const
{
    return m_action;
}

/// The text of the notification, its fields joined without anything between them.
QString QDeviceChangeEvent::device() const
{
    return m_device;
}

/// The type of all these events, registered with Qt by the first call.
QEvent::Type QDeviceChangeEvent::registeredType()
{
    static const int type = QEvent::registerEventType(-1);
    return static_cast<QEvent::Type>(type);
}

// ---- QDeviceWatcher

/// A watcher that is not started yet.
QDeviceWatcher::QDeviceWatcher(QObject* parent)
    : QObject(parent), m_running(false), m_private(new QDeviceWatcherPrivate(this))
{
}

/// Stops listening. Receivers and their events under way are left alone.
QDeviceWatcher::~QDeviceWatcher()
{
    delete m_private;
}

/// Starts to listen, anew when it listens already. Always true, and the watcher counts as running
/// afterwards: where the kernel's notifications cannot be had, a warning is all that tells.
bool QDeviceWatcher::start()
{
    if (!m_private->start())
        stop();
    m_running = true; // also without a socket, on purpose
    return true;
}

/// Stops listening; harmless when it does not listen. Always true.
bool QDeviceWatcher::stop()
{
    const bool stopped = m_private->stop();
    m_running = !stopped;
    return stopped;
}

/// Whether the watcher was started and not stopped since.
bool QDeviceWatcher::isRunning() const
{
    return m_running;
}

/// Adds \a receiver to those that get a QDeviceChangeEvent of their own for every notification,
/// once for each time that it was added. It stays with the caller, may live in another thread, and
/// may be destroyed at any time.
void QDeviceWatcher::appendEventReceiver(QObject* receiver)
{
    m_private->appendEventReceiver(receiver);
}

// ---- ReceiverBarrier

ReceiverBarrier::ReceiverBarrier()
{
}

ReceiverBarrier* ReceiverBarrier::instance()
{
    static ReceiverBarrier* const barrier = new ReceiverBarrier;
    return barrier;
}

/// Makes the destruction of \a receiver wait for the end of a post() that has begun.
void ReceiverBarrier::guard(QObject* receiver)
{
    connect(receiver, SIGNAL(destroyed()), this, SLOT(pass()),
            static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::UniqueConnection));
}

/// Posts an event to \a receiver and returns true, or returns false when it is gone. A receiver
/// that another thread destroys meanwhile has lost its pointers before it says so, and then stands
/// in pass() until the event is posted; with the rest of the receiver, the event dies too.
bool ReceiverBarrier::post(const QPointer<QObject>& receiver, QDeviceChangeEvent::Action action,
                           const QString& dev)
{
    QMutexLocker locker(&m_mutex);
    QObject* const object = receiver.data();
    if (object)
        QCoreApplication::postEvent(object, new QDeviceChangeEvent(action, dev),
                                    Qt::HighEventPriority);
    return object != nullptr;
}

/// Returns when no event is being posted. Runs in the thread of a receiver that is destroyed.
void ReceiverBarrier::pass()
{
    QMutexLocker locker(&m_mutex);
}

// ---- QDeviceWatcherPrivate

/// What each action of the kernel leads to.
struct QDeviceWatcherPrivate::ActionRow {
    const char* action;
    QDeviceChangeEvent::Action eventAction;
    void (QDeviceWatcherPrivate::*emitSignal)(const QString& dev);
};

// clang-format off
const QDeviceWatcherPrivate::ActionRow QDeviceWatcherPrivate::s_actions[] = {
    {"add",    QDeviceChangeEvent::Add,    &QDeviceWatcherPrivate::emitDeviceAdded},
    {"remove", QDeviceChangeEvent::Remove, &QDeviceWatcherPrivate::emitDeviceRemoved},
    {"change", QDeviceChangeEvent::Change, &QDeviceWatcherPrivate::emitDeviceChanged},
};
// clang-format on

/// The row of \a action, which is in lower case; null when there is none.
const QDeviceWatcherPrivate::ActionRow* QDeviceWatcherPrivate::rowOf(const QString& action)
{
    static_assert(table::count(s_actions) == QDeviceChangeEvent::Change + 1,
                  "each Action has a row");
    for (int i = 0; i < table::count(s_actions); ++i) {
        if (action == QLatin1String(s_actions[i].action))
            return &s_actions[i];
    }
    return nullptr;
}

/// The closed socket of \a watcher, whose signals it calls.
QDeviceWatcherPrivate::QDeviceWatcherPrivate(QDeviceWatcher* watcher)
    : m_watcher(watcher), m_notifier(nullptr), m_socket(-1)
{
}

QDeviceWatcherPrivate::~QDeviceWatcherPrivate()
{
    stop();
}

/// Opens the socket, after closing one that is open, and makes a notifier for it that is not
/// enabled yet. Where that fails, it warns, leaves the socket closed and returns false.
bool QDeviceWatcherPrivate::init()
{
    stop();
    m_socket = socket(AF_NETLINK, SOCK_DGRAM, NETLINK_KOBJECT_UEVENT);
    if (m_socket == -1) {
        qWarning("error getting socket: %s", strerror(errno));
        return false;
    }
    // A program that the application starts must not hold our port after we are gone, and an
    // activation without a datagram must not block the event loop.
    fcntl(m_socket, F_SETFD, FD_CLOEXEC);
    fcntl(m_socket, F_SETFL, fcntl(m_socket, F_GETFL) | O_NONBLOCK);
    // Only root gets this much room; everyone else listens with the system's default.
    const int bufferSize = 16777216;
    setsockopt(m_socket, SOL_SOCKET, SO_RCVBUFFORCE, &bufferSize, sizeof bufferSize);
    if (!bindSocket()) {
        qWarning("bind failed: %s", strerror(errno));
        close(m_socket);
        m_socket = -1;
        return false;
    }
    makeNotifier();
    return true;
}

/// Binds the socket to the kernel's group of notifications, under the process id; false, with
/// errno set, when it cannot be had.
bool QDeviceWatcherPrivate::bindSocket()
{
    sockaddr_nl address;
    memset(&address, 0, sizeof address);
    address.nl_family = AF_NETLINK;
    address.nl_pid = static_cast<unsigned int>(getpid());
    address.nl_groups = 1;
    if (bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address) < 0)
        return false;

    sockaddr_nl bound;
    socklen_t length = sizeof bound;
    // Deliberate: the port that was really given is taken over, though nothing asks for it yet.
    if (getsockname(m_socket, reinterpret_cast<sockaddr*>(&bound), &length) == 0)
        address.nl_pid = bound.nl_pid;
    return true;
}

/// Makes the notifier of the socket, disabled. The one before, of a closed socket, stays a disabled
/// child: it may be the one that is just telling of a datagram.
void QDeviceWatcherPrivate::makeNotifier()
{
    m_notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(m_notifier, SIGNAL(activated(int)), this, SLOT(parseDeviceInfo()));
    m_notifier->setEnabled(false);
}

/// Opens the socket and reads from it from now on; false, after a warning, when it cannot be
/// opened.
bool QDeviceWatcherPrivate::start()
{
    if (!init())
        return false;
    m_notifier->setEnabled(true);
    return true;
}

/// Closes the socket, if it is open. Always true.
bool QDeviceWatcherPrivate::stop()
{
    if (m_socket == -1)
        return true;
    m_notifier->setEnabled(false);
    close(m_socket);
    m_socket = -1;
    return true;
}

/// Adds \a receiver to those that get events. A null one gets none.
void QDeviceWatcherPrivate::appendEventReceiver(QObject* receiver)
{
    m_eventReceivers.append(Receiver(receiver));
    if (receiver)
        ReceiverBarrier::instance()->guard(receiver);
}

/// Reads one datagram and tells what it notifies of. Nothing follows from a read that fails or
/// gives nothing; when the kernel has dropped notifications, what it has kept is read next.
void QDeviceWatcherPrivate::parseDeviceInfo()
{
    const QByteArray datagram = readDatagram();
    if (datagram.isEmpty())
        return;
    const QPointer<QDeviceWatcherPrivate> alive(this);
    parseLine(uevent::joinedFields(datagram, &m_buffer));
    if (alive)
        m_buffer.close();
}

/// The next datagram of the notifier's socket, cut off at the size that is looked at; empty when
/// there is none, and when the socket is closed: its number may be another file's by now.
QByteArray QDeviceWatcherPrivate::readDatagram() const
{
    if (m_socket == -1)
        return QByteArray();
    char bytes[uevent::MaxDatagramSize] = {0};
    const ssize_t count = read(static_cast<int>(m_notifier->socket()), bytes, sizeof bytes);
    return count > 0 ? QByteArray(bytes, static_cast<int>(count)) : QByteArray();
}

/// Tells what the notification \a line, its fields joined, is about: by the signal of the watcher,
/// then by an event for each receiver. Actions other than add, remove and change are dropped.
void QDeviceWatcherPrivate::parseLine(const QByteArray& line)
{
    const uevent::Notification notification = uevent::notification(line);
    const ActionRow* row = rowOf(notification.action);
    if (!row)
        return;
    const QPointer<QDeviceWatcherPrivate> alive(this);
    (this->*row->emitSignal)(notification.device);
    if (alive)
        postEvents(row->eventAction, notification.device);
}

/// Posts an event of its own to each receiver, in the order in which they were added, and drops
/// those that are gone. No guarded pointer is copied meanwhile: another thread may be destroying
/// the receiver, and with Qt 4 a copy enters itself in its receiver.
void QDeviceWatcherPrivate::postEvents(QDeviceChangeEvent::Action action, const QString& dev)
{
    int i = 0;
    while (i < m_eventReceivers.size()) {
        if (ReceiverBarrier::instance()->post(m_eventReceivers.at(i), action, dev))
            ++i;
        else
            m_eventReceivers.removeAt(i);
    }
}

/// Lets the watcher emit deviceAdded() with \a dev.
void QDeviceWatcherPrivate::emitDeviceAdded(const QString& dev)
{
    emitSignal("deviceAdded", dev);
}

/// Lets the watcher emit deviceRemoved() with \a dev.
void QDeviceWatcherPrivate::emitDeviceRemoved(const QString& dev)
{
    emitSignal("deviceRemoved", dev);
}

/// Lets the watcher emit deviceChanged() with \a dev.
void QDeviceWatcherPrivate::emitDeviceChanged(const QString& dev)
{
    emitSignal("deviceChanged", dev);
}

/// Lets the watcher emit the signal for \a action, a word in any case; none for an unknown one. No
/// event is posted.
void QDeviceWatcherPrivate::emitDeviceAction(const QString& dev, const QString& action)
{
    const ActionRow* row = rowOf(action.toLower());
    if (row)
        (this->*row->emitSignal)(dev);
}

/// Calls the signal \a name of the watcher in the watcher's thread; warns when that fails.
void QDeviceWatcherPrivate::emitSignal(const char* name, const QString& dev)
{
    if (!QMetaObject::invokeMethod(m_watcher, name, Qt::AutoConnection, Q_ARG(QString, dev)))
        qWarning("invoke %s failed", name);
}
