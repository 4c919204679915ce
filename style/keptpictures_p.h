#ifndef CWIDGET_STYLE_KEPTPICTURES_P_H
#define CWIDGET_STYLE_KEPTPICTURES_P_H

#include "style/widgetstyle.h"

// The state pixmaps that many widgets show at the same time. CWidgetStyle cuts a copy of its own
// for every call; these stay in Qt's cache of pixmaps, and all widgets share them.
namespace keptpictures
{

QPixmap button(CWidgetStyle::ButtonStatus status, bool normalSize);
QPixmap key(CWidgetStyle::KeyStatus status);
QPixmap pageSwitch(CWidgetStyle::PageSwitchStatus status);
QPixmap image(const char* path);

} // namespace keptpictures

#endif
