// A notification of any bytes: its fields are joined without what separates them, and it leads to
// no more than one signal and one event for each receiver.

#include "fuzzing.h"

#include "hotplug/devicewatcher_p.h"
#include "hotplug/hotplugwatcher.h"
#include "hotplug/uevent_p.h"

#include <QBuffer>
#include <QCoreApplication>

namespace
{

/// Counts the events that it gets, and keeps the text of the last one.
class Receiver : public QObject
{
public:
    Receiver() : count(0)
    {
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QDeviceChangeEvent::registeredType())
            return QObject::event(event);
        ++count;
        device = static_cast<QDeviceChangeEvent*>(event)->device();
        return true;
    }

    int count;
    QString device;
};

bool isTold(const QString& action)
{
    return action == QLatin1String("add") || action == QLatin1String("remove") ||
           action == QLatin1String("change");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray datagram(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QBuffer buffer;
    const QByteArray line = uevent::joinedFields(datagram, &buffer);
    fuzzing::require(!line.contains('\0') && !line.contains('\n'), "nothing separates fields");
    fuzzing::require(line.size() <= datagram.size(), "nothing is added");
    fuzzing::require(uevent::joinedFields(line, &buffer) == line, "what is joined stays joined");

    const uevent::Notification notification = uevent::notification(line);
    fuzzing::require(notification.device.toLatin1() == line, "the device is all of it");
    fuzzing::require(!notification.action.contains(QLatin1Char('@')), "the action ends before it");

    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    Receiver first;
    Receiver second;
    parser.appendEventReceiver(&first);
    parser.appendEventReceiver(&second);
    parser.parseLine(line);
    QCoreApplication::sendPostedEvents();
    const int expected = isTold(notification.action) ? 1 : 0;
    fuzzing::require(first.count == expected && second.count == expected, "an event for each");
    fuzzing::require(!expected || second.device == notification.device, "the event has the text");
    return 0;
}
