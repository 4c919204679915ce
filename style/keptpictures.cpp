#include "style/keptpictures_p.h"

#include <QPixmapCache>

namespace keptpictures
{

namespace
{

/// \a kind with the \a number in the place of its last character.
QString numbered(const char* kind, int number)
{
    QString name = QLatin1String(kind);
    name[name.size() - 1] = QChar(static_cast<ushort>(number));
    return name;
}

/// The picture that has the \a name in the cache, made by \a cut where the cache does not have it
/// any more.
template <typename Cut>
QPixmap kept(const QString& name, Cut cut)
{
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
    const char* kind = normalSize ? "quorlin-cwidget/button/#" : "quorlin-cwidget/big-button/#";
    return kept(numbered(kind, status),
                [=] { return CWidgetStyle::getButtonStatus(status, normalSize); });
}

/// As CWidgetStyle::getKeyStatus().
QPixmap key(CWidgetStyle::KeyStatus status)
{
    return kept(numbered("quorlin-cwidget/key/#", status),
                [=] { return CWidgetStyle::getKeyStatus(status); });
}

/// As CWidgetStyle::getPageSwitchStatus().
QPixmap pageSwitch(CWidgetStyle::PageSwitchStatus status)
{
    return kept(numbered("quorlin-cwidget/page-switch/#", status),
                [=] { return CWidgetStyle::getPageSwitchStatus(status); });
}

/// The whole image file \a path of the resources. Qt keeps it as well, but looks for the file first
/// each time.
QPixmap image(const char* path)
{
    return kept(QLatin1String(path), [=] { return QPixmap(QLatin1String(path)); });
}

} // namespace keptpictures
