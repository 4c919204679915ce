#ifndef CWIDGET_WIDGETS_METRICS_P_H
#define CWIDGET_WIDGETS_METRICS_P_H

#include <QColor>

// Measures that several classes share, in pixels where they are lengths. What only happens to have
// the same number has a name of its own in its own file.
namespace metrics
{

const int controlHeight = 28; // of a control, and of a row of a list
const int pageBarHeight = 30;
const int rowsOfPage = 5; // of a list, as long as nothing else is set

const QRgb thinFrameColor = 0xD4D4D4; // of the frame of one pixel around what is entered

} // namespace metrics

#endif
