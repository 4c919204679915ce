#ifndef CWIDGET_HOTPLUG_DEVICEWATCHER_H
#define CWIDGET_HOTPLUG_DEVICEWATCHER_H

#include "../style/global.h"

#include <QEvent>
#include <QObject>
#include <QString>

class QDeviceWatcherPrivate;

/// Tells a receiver of the device watcher that the kernel has added, removed or changed a device.
class CWIDGET_EXPORT QDeviceChangeEvent : public QEvent
{
public:
    /// What happened to the device.
    enum Action : int {
        Add = 0,
        Remove = 1,
        Change = 2
    };

    QDeviceChangeEvent(Action action, const QString& device);
    ~QDeviceChangeEvent() override;

    Action action() const;
    QString device() const;

    static QEvent::Type registeredType();

private:
    Action m_action;
    QString m_device;

    Q_DISABLE_COPY(QDeviceChangeEvent)
};

/// Listens to the kernel's hot-plug notifications and tells about every device that is added,
/// removed or changed: by a signal, and by an event for each registered receiver. It works in the
/// event loop of the thread that constructs it. For applications that want to know about devices of
/// any kind; for whether there is a keyboard, CHotplugWatcher is enough.
class CWIDGET_EXPORT QDeviceWatcher : public QObject
{
    Q_OBJECT

public:
    explicit QDeviceWatcher(QObject* parent = nullptr);
    ~QDeviceWatcher() override;

    bool start();
    bool stop();
    bool isRunning() const;

    void appendEventReceiver(QObject* receiver);

Q_SIGNALS:
    /// The kernel has added a device; \a dev is its notification, all fields in one run of text.
    void deviceAdded(const QString& dev);
    /// The kernel has removed a device; \a dev as for deviceAdded().
    void deviceRemoved(const QString& dev);
    /// Something about a device has changed; \a dev as for deviceAdded().
    void deviceChanged(const QString& dev);

private:
    bool m_running;
    QDeviceWatcherPrivate* m_private;

    Q_DISABLE_COPY(QDeviceWatcher)
};

#endif
