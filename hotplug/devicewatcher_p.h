#ifndef CWIDGET_HOTPLUG_DEVICEWATCHER_P_H
#define CWIDGET_HOTPLUG_DEVICEWATCHER_P_H

#include "hotplug/devicewatcher.h"

#include <QBuffer>
#include <QList>
#include <QMutex>
#include <QPointer>

class QSocketNotifier;

/// Holds up the destruction of a receiver, in whichever thread it lives, while an event is posted
/// to it. There is one per process, and it is never destroyed.
class ReceiverBarrier : public QObject
{
    Q_OBJECT

public:
    static ReceiverBarrier* instance();

    void guard(QObject* receiver);
    bool post(const QPointer<QObject>& receiver, QDeviceChangeEvent::Action action,
              const QString& dev);

public Q_SLOTS:
    void pass();

private:
    ReceiverBarrier();

    QMutex m_mutex;

    Q_DISABLE_COPY(ReceiverBarrier)
};

/// The socket of a device watcher, and what is made of the datagrams that come in through it.
/// Exported for tests, and not installed.
class CWIDGET_EXPORT QDeviceWatcherPrivate : public QObject
{
    Q_OBJECT

public:
    explicit QDeviceWatcherPrivate(QDeviceWatcher* watcher);
    ~QDeviceWatcherPrivate() override;

    bool init();
    bool start();
    bool stop();

    void appendEventReceiver(QObject* receiver);

    void parseLine(const QByteArray& line);

    void emitDeviceAdded(const QString& dev);
    void emitDeviceRemoved(const QString& dev);
    void emitDeviceChanged(const QString& dev);
    void emitDeviceAction(const QString& dev, const QString& action);

public Q_SLOTS:
    void parseDeviceInfo();

private:
    struct ActionRow;

    static const ActionRow s_actions[];
    static const ActionRow* rowOf(const QString& action);

    bool bindSocket();
    void makeNotifier();
    QByteArray readDatagram() const;
    void emitSignal(const char* name, const QString& dev);
    void postEvents(QDeviceChangeEvent::Action action, const QString& dev);

    typedef QPointer<QObject> Receiver; // named, as Qt 4's moc reads no closing >>
    QList<Receiver> m_eventReceivers;
    QDeviceWatcher* m_watcher;
    QBuffer m_buffer;
    QSocketNotifier* m_notifier;
    int m_socket;

    Q_DISABLE_COPY(QDeviceWatcherPrivate)
};

#endif
