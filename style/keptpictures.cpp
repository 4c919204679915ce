#include "style/keptpictures_p.h"

#include <QPixmapCache>

namespace keptpictures
{

namespace
{

/// The picture that is called \a kind and \a number in the cache, made by \a cut where the cache
/// does not have it any more.
template <typename Cut>
QPixmap kept(const char* kind, int number, Cut cut)
{
    const QString name = QLatin1String(kind) + QChar(static_cast<ushort>(number));
    QPixmap picture;
    if (!QPixmapCache::find(name, &picture)) {
        picture = cut();
        QPixmapCache::insert(name, picture);
    }
    return picture;
}

} // namespace

/// As CWidgetStyle::getButtonStatus().
QPixmap button(CWidgetStyle::ButtonStatus status, bool normalSize)
{
    return kept(normalSize ? "quorlin-cwidget/button/" : "quorlin-cwidget/big-button/", status,
                [=] { return CWidgetStyle::getButtonStatus(status, normalSize); });
}

/// As CWidgetStyle::getKeyStatus().
QPixmap key(CWidgetStyle::KeyStatus status)
{
    return kept("quorlin-cwidget/key/", status, [=] { return CWidgetStyle::getKeyStatus(status); });
}

/// As CWidgetStyle::getPageSwitchStatus().
QPixmap pageSwitch(CWidgetStyle::PageSwitchStatus status)
{
    return kept("quorlin-cwidget/page-switch/", status,
                [=] { return CWidgetStyle::getPageSwitchStatus(status); });
}

/// The whole image file \a path of the resources. Qt keeps it as well, but looks for the file first
/// each time.
QPixmap image(const char* path)
{
    return kept(path, 0, [=] { return QPixmap(QLatin1String(path)); });
}

} // namespace keptpictures
