#ifndef CWIDGET_TESTS_SUPPORT_RESOLUTION_H
#define CWIDGET_TESTS_SUPPORT_RESOLUTION_H

#include "support/testing.h"

namespace testing
{

/// An empty picture of the size and the resolution of \a widget, for fonts sized in points: those
/// have more pixels where a screen has more dots, and a plain picture may differ from the screen.
inline QImage canvasOfResolution(const QWidget* widget)
{
    const qreal inch = 0.0254; // in meters
    QImage image = canvas(widget);
    image.setDotsPerMeterX(qRound(widget->logicalDpiX() / inch));
    image.setDotsPerMeterY(qRound(widget->logicalDpiY() / inch));
    return image;
}

} // namespace testing

#endif
