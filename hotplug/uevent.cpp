#include "hotplug/uevent_p.h"

#include <QBuffer>

/// The fields of \a datagram, which NUL bytes end, as one run of text without anything between
/// them. White space around a field is dropped. \a buffer gets the fields, as lines; it is left
/// open.
QByteArray uevent::joinedFields(const QByteArray& datagram, QBuffer* buffer)
{
    QByteArray lines = datagram;
    lines.replace('\0', '\n');
    if (buffer->isOpen())
        buffer->close();
    buffer->setData(lines.trimmed());
    buffer->open(QIODevice::ReadOnly);

    const QByteArray& text = buffer->data();
    QByteArray joined;
    for (int from = 0; from < text.size();) {
        int end = static_cast<int>(text.indexOf('\n', from));
        if (end < 0)
            end = static_cast<int>(text.size());
        joined += text.mid(from, end - from).trimmed();
        from = end + 1;
    }
    return joined;
}

/// The notification in \a line: its action stands before the first at sign, and is empty where
/// there is none; its device is all of the line, taken as Latin-1.
uevent::Notification uevent::notification(const QByteArray& line)
{
    Notification result;
    const int at = static_cast<int>(line.indexOf('@'));
    if (at > 0)
        result.action = QString::fromLatin1(line.constData(), at).toLower();
    result.device = QString::fromLatin1(line.constData(), static_cast<int>(line.size()));
    return result;
}
