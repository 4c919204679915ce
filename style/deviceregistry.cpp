#include "style/widgetstyle.h"

#include <QMap>
#include <QMutex>

namespace
{

// An application may construct its hot-plug watcher in a thread of its own while widgets ask from
// the GUI thread.
QMutex s_registryMutex;
QMap<int, bool> m_devMap;
QString s_usbDir;

} // namespace

/// Whether a device of the kind \a type is attached; false when nothing was ever said about it.
/// May be called from any thread.
bool CWidgetStyle::isDeviceAvailable(DeviceType type)
{
    QMutexLocker locker(&s_registryMutex);
    return m_devMap.value(type, false);
}

/// Notes whether a device of the kind \a type is attached. May be called from any thread.
void CWidgetStyle::setDeviceAvailable(DeviceType type, bool available)
{
    QMutexLocker locker(&s_registryMutex);
    m_devMap.insert(type, available);
}

/// The directory where USB storage is mounted; null until it was set. May be called from any
/// thread.
QString CWidgetStyle::getUSBDir()
{
    QMutexLocker locker(&s_registryMutex);
    return s_usbDir;
}

/// Sets the directory where USB storage is mounted. May be called from any thread.
void CWidgetStyle::setUSBDir(const QString& dir)
{
    QMutexLocker locker(&s_registryMutex);
    s_usbDir = dir;
}
