#ifndef ARTWORK_CONTACTSHEET_H
#define ARTWORK_CONTACTSHEET_H

#include "picture.h"

#include <QList>

class QImage;

// One sheet with every picture of the groups on a light and, where its background shows through, on
// a dark swatch, with name and size. Needs an application object, for its fonts.
QImage drawContactSheet(const QList<PictureGroup>& groups);

#endif
