#ifndef CWIDGET_TESTS_EXTREMES_SHARPNESS_H
#define CWIDGET_TESTS_EXTREMES_SHARPNESS_H

#include <QImage>

class QWidget;

/// How a widget looks on screens of other resolutions, compared with the plain one.
namespace sharpness
{

/// What \a widget paints on a screen with \a ratio pixels for each of its own.
QImage paintedAt(QWidget* widget, qreal ratio);

/// How far apart the two pictures are at most, in one place of a few pixels, from 0 to 255; both
/// are looked at in the size of \a plain. Something that stands in another place or is cut off
/// shows in it, while the finer edges of the larger picture do not.
double farthest(const QImage& plain, const QImage& larger);

/// How much of the sharpness of \a plain is left in \a larger, which has \a ratio times its size: 1
/// when each edge is as hard as before, and only longer.
double kept(const QImage& plain, const QImage& larger, qreal ratio);

} // namespace sharpness

#endif
