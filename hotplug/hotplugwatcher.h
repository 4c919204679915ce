#ifndef CWIDGET_HOTPLUG_HOTPLUGWATCHER_H
#define CWIDGET_HOTPLUG_HOTPLUGWATCHER_H

#include "../style/global.h"

#include <QString>
#include <QThread>

class QDeviceWatcher;

/// Keeps the registry of CWidgetStyle up to date on whether a keyboard, a mouse and USB storage are
/// attached, so that a line edit knows when to open a soft keypad. An application that wants this
/// constructs one, in its GUI thread, and keeps it as long as it runs.
///
/// It is a thread whose event loop idles; all its work is done in the thread that constructs it.
class CWIDGET_EXPORT CHotplugWatcher : public QThread
{
    Q_OBJECT

public:
    explicit CHotplugWatcher(QObject* parent = nullptr);
    ~CHotplugWatcher() override;

    static void detectDevice();

public Q_SLOTS:
    void addDevice(const QString& dev);
    void removeDevice(const QString& dev);
    void changeDevice(const QString& dev);

private:
    QDeviceWatcher* m_watcher;

    Q_DISABLE_COPY(CHotplugWatcher)
};

#endif
