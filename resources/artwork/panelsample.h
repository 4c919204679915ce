#ifndef ARTWORK_PANELSAMPLE_H
#define ARTWORK_PANELSAMPLE_H

#include "picture.h"

#include <QList>

class QImage;

// A front panel and a keypad put together from the pictures of the groups, with the texts that the
// widgets write on them. Needs an application object, for its fonts.
QImage drawPanelSample(const QList<PictureGroup>& groups);

#endif
