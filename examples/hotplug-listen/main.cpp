// Prints what the kernel says about devices, and what the library makes of it, as it happens. Plug
// something, or say it yourself, as root:
//
//   cd /sys/class/mem/null
//   echo add 12345678-1234-1234-1234-123456789abc SUBSYSTEM=input NAME=Keyboard > uevent

#include <CHotplugWatcher>
#include <CWidgetStyle>
#include <QCoreApplication>
#include <QDeviceWatcher>

#include <cstdio>

namespace
{

const char* attached(CWidgetStyle::DeviceType type)
{
    return CWidgetStyle::isDeviceAvailable(type) ? "attached" : "not attached";
}

void printRegistry()
{
    printf("          keyboard %s, mouse %s, USB storage %s\n",
           attached(CWidgetStyle::DeviceKeyboard), attached(CWidgetStyle::DeviceMouse),
           attached(CWidgetStyle::DeviceStorage));
    fflush(stdout);
}

} // namespace

/// Prints each notification and, below it, what the registry says after it.
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(QDeviceWatcher* watcher)
    {
        connect(watcher, SIGNAL(deviceAdded(QString)), SLOT(printAdded(QString)));
        connect(watcher, SIGNAL(deviceRemoved(QString)), SLOT(printRemoved(QString)));
        connect(watcher, SIGNAL(deviceChanged(QString)), SLOT(printChanged(QString)));
    }

private Q_SLOTS:
    void printAdded(const QString& dev)
    {
        print("added", dev);
    }

    void printRemoved(const QString& dev)
    {
        print("removed", dev);
    }

    void printChanged(const QString& dev)
    {
        print("changed", dev);
    }

private:
    void print(const char* what, const QString& dev)
    {
        printf("%-9s %s\n", what, qPrintable(dev));
        printRegistry();
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);

    printf("taking the inventory, which may take up to three seconds...\n");
    fflush(stdout);
    CHotplugWatcher hotplug;
    printRegistry();

    // A process can listen to the kernel once, and the hot-plug watcher does. What else wants to
    // know joins in there; the registry is up to date when it is told.
    Listener listener(hotplug.findChild<QDeviceWatcher*>());
    return application.exec();
}

#include "main.moc"
