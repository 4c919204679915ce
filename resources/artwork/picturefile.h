#ifndef ARTWORK_PICTUREFILE_H
#define ARTWORK_PICTUREFILE_H

#include <QByteArray>

class QImage;

// The same picture with a palette of 8 bits if it has no more colours than that, else as it is.
// Such a file is smaller and decoded in half the time; no pixel is another one.
QImage withPalette(const QImage& image);

// A hash of the size and the pixels of a picture, whatever the format of its file. What is wholly
// transparent has no colour.
QByteArray pixelHash(const QImage& image);

#endif
