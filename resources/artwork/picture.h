#ifndef ARTWORK_PICTURE_H
#define ARTWORK_PICTURE_H

#include <QSize>

class QImage;
class QPainter;

// Draws one cell of a picture with its top left corner at the origin. \a index counts the cells row
// by row from 0; \a kind is the parameter of the picture's table row.
typedef void (*DrawCell)(QPainter& painter, const QSize& cell, int index, int kind);

// What a picture is meant to stand on.
enum Ground {
    OnLight,
    OnDark,
    OnBoth,
    OnBlack
};

// One file of the collection: a grid of equal cells, most often a strip of looks side by side.
struct Picture {
    const char* name;
    int width; // of the whole image, px
    int height;
    int columns;
    int rows;
    DrawCell draw;
    int kind;
    Ground ground;
};

// The pictures of one subject, in the order of the contact sheet.
struct PictureGroup {
    const char* title;
    const Picture* pictures;
    int count;
};

// Draws all cells of a picture, each clipped to its own cell, on a transparent background.
QImage render(const Picture& picture);

// Width and height of one cell, px.
QSize cellSize(const Picture& picture);

PictureGroup buttonPictures();
PictureGroup smallButtonPictures();
PictureGroup keyPictures();
PictureGroup arrowPictures();
PictureGroup barPictures();
PictureGroup indicatorPictures();
PictureGroup signPictures();
PictureGroup iconPictures();
PictureGroup tilePictures();

#endif
