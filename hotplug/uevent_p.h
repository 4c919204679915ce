#ifndef CWIDGET_HOTPLUG_UEVENT_P_H
#define CWIDGET_HOTPLUG_UEVENT_P_H

#include <QByteArray>
#include <QString>

class QBuffer;

/// What the bytes of a kernel notification mean. Nothing here knows of sockets or watchers.
namespace uevent
{

/// The most bytes of a datagram that are looked at; the kernel's own stay well below.
enum {
    MaxDatagramSize = 4096
};

/// What happened, as a word in lower case, and to what: the whole text of the notification.
struct Notification {
    QString action;
    QString device;
};

QByteArray joinedFields(const QByteArray& datagram, QBuffer* buffer);
Notification notification(const QByteArray& line);

} // namespace uevent

#endif
