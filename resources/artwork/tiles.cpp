#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QRectF>

namespace
{

const int TileColumns = 3;
const int TileRows = 10;
const qreal SignBox = 24; // px, centred in the tile
const qreal TileGap = 1;  // px around each tile

// One colour for each row, in a part of its signs
// clang-format off
const QRgb RowAccents[TileRows] = {
    0xffb9b4f0, // overview
    0xff6fb2f5, // signals
    0xff6fd3d8, // process
    0xffffd166, // energy
    0xfff59a4a, // time and alarms
    0xffe3c07a, // files
    0xffa9b2c8, // settings
    0xfff08a86, // people and access
    0xff8fb4ff, // connections
    0xff86dc9c, // output
};

const char* const TileSigns[TileRows][TileColumns] = {
    { // house, gauge, trend
      "Si2 M 3 11.5 L 12 3.5 L 21 11.5 M 5.5 10 L 5.5 21 L 18.5 21 L 18.5 10;Fa R 10 14 4 7 0",
      "Si2 A 12 14 9 -20 220;Sa2 M 12 14 L 16.5 8.5;Fi O 12 14 2",
      "Si2 M 3 3 L 3 21 L 21 21;Sa2 M 6.5 16.5 L 11 11 L 14.5 13.5 L 20 6" },
    { // wave, bars, spectrum
      "Si2 M 3 12 C 5 2 9 2 12 12 C 15 22 19 22 21 12;Fa O 12 12 2",
      "Fi R 3 13 4 8 1 R 17 10 4 11 1;Fa R 10 4 4 17 1",
      "Si2 M 3 17 L 7 17 L 9.5 12 L 12 3 L 14.5 12 L 17 17 L 21 17;Ba2 M 2 21 L 22 21" },
    { // temperature, liquid, valve
      "Si2 M 9 13.5 L 9 5.5 A 12 5.5 3 180 -180 L 15 13.5 A 12 17 4.6 50 -280;"
      "Fa O 12 17 2.6 R 11 9 2 8 0",
      "Si2 M 12 2.5 C 9 7 5.5 10.5 5.5 14.75 C 5.5 18.5 8.5 21.25 12 21.25 "
      "C 15.5 21.25 18.5 18.5 18.5 14.75 C 18.5 10.5 15 7 12 2.5 Z;Sa2 A 12 14.75 3.25 190 80",
      "Si2 M 3 10 L 3 20 L 12 15 L 21 20 L 21 10 L 12 15 Z;Sa2 M 12 14 L 12 5 M 8 4.5 L 16 4.5" },
    { // battery, bolt, sun
      "Si2 R 3 7 16 10 1.5;Fi R 20 10 2 4 0;Fa R 6 10 3 4 0 R 10 10 3 4 0",
      "Dai1.5 M 13.5 2.5 L 5 13.5 L 11 13.5 L 9.5 21.5 L 19 9.5 L 12.5 9.5 Z",
      "Dai2 O 12 12 4;Si2 M 12 2.5 L 12 4 M 12 20 L 12 21.5 M 2.5 12 L 4 12 M 20 12 L 21.5 12 "
      "M 5.3 5.3 L 6.3 6.3 M 18.7 5.3 L 17.7 6.3 M 5.3 18.7 L 6.3 17.7 M 18.7 18.7 L 17.7 17.7" },
    { // bell, clock, calendar
      "Si2 M 4 18 C 6.5 15.5 6 12 6.5 9 C 7.2 5.5 9.5 4 12 4 C 14.5 4 16.8 5.5 17.5 9 "
      "C 18 12 17.5 15.5 20 18 Z;Fa O 12 21 2;Si2 M 12 2.5 L 12 4",
      "Si2 O 12 12 9;Sa2 M 12 6.5 L 12 12 L 16 14.5",
      "Si2 R 4 5 16 16 1.5 M 4 10 L 20 10 M 8 3 L 8 5 M 16 3 L 16 5;Fa R 13 14 4 4 0" },
    { // folder, document, pencil
      "Si2 M 3 6 L 9 6 L 11.5 9 L 21 9 L 21 20 L 3 20 Z;Sa2 M 6.5 13 L 17.5 13",
      "Si2 M 5 3 L 14 3 L 19 8 L 19 21 L 5 21 Z;Sa2 M 9 12 L 15 12 M 9 16 L 15 16",
      "Si2 M 4 20 L 5 15.5 L 16 4.5 L 19.5 8 L 8.5 19 Z;Sa2 M 13 7.5 L 16.5 11" },
    { // sliders, crosshair, list
      "Si2 M 3 6 L 21 6 M 3 12 L 21 12 M 3 18 L 21 18;Dai1.5 O 15 6 2.5 O 8 12 2.5 O 17 18 2.5",
      "Si2 O 12 12 7 M 12 2 L 12 7 M 12 17 L 12 22 M 2 12 L 7 12 M 17 12 L 22 12;Fa O 12 12 2",
      "Si2 M 9 6 L 21 6 M 9 12 L 21 12 M 9 18 L 21 18;Fa O 4.5 6 1.75 O 4.5 12 1.75 "
      "O 4.5 18 1.75" },
    { // person, padlock, key
      "Dai2 O 12 7.5 4;Si2 M 4 21 C 4 16.5 7 14.5 12 14.5 C 17 14.5 20 16.5 20 21 Z",
      "Si2 R 5 11 14 10 1.5 M 8 11 L 8 7 A 12 7 4 180 -180 L 16 11;Fa O 12 16 2",
      "Si2 O 7.5 12 4.5 M 12 12 L 21 12 L 21 16 M 17 12 L 17 15;Fa O 7.5 12 1.5" },
    { // radio, network, memory card
      "Si2 A 12 19 8 45 90 A 12 19 13.5 45 90;Fa O 12 19 2.5",
      "Si2 M 12 7 L 12 12 M 5 17 L 5 12 L 19 12 L 19 17;Dai1.5 R 9.5 2.5 5 5 0.5;"
      "Dai1.5 R 2.5 16.5 5 5 0.5 R 16.5 16.5 5 5 0.5",
      "Si2 M 5 3 L 15 3 L 19 7 L 19 21 L 5 21 Z;Ba2 M 9 5 L 9 9 M 12 5 L 12 9 M 15 6 L 15 9" },
    { // printer, loudspeaker, switch
      "Si2 M 7 8 L 7 3 L 17 3 L 17 8 M 6 17 L 3 17 L 3 8 L 21 8 L 21 17 L 18 17;"
      "Si2 R 7 14 10 7 0;Fa R 16 10 3 2 0",
      "Si2 M 3 9.5 L 7 9.5 L 12 5 L 12 19 L 7 14.5 L 3 14.5 Z;Sa2 A 12 12 4.5 -40 80 "
      "A 12 12 8.5 -42 84",
      "Si2 A 12 12.5 8.5 60 -300;Sa2 M 12 3 L 12 12" },
};
// clang-format on

void drawTile(QPainter& painter, const QSize& cell, int index, int)
{
    const int row = index / TileColumns;
    const Scheme scheme = {Palette::White, RowAccents[row], Palette::White, Palette::Inactive};
    const QRectF box(QPointF(0, 0), cell);
    drawFace(painter, box.adjusted(TileGap, TileGap, -TileGap, -TileGap), toolFace(Released),
             ButtonRadius);
    painter.translate(int((cell.width() - SignBox) / 2), int((cell.height() - SignBox) / 2));
    drawShape(painter, TileSigns[row][index % TileColumns], scheme);
}

// clang-format off
const Picture Pictures[] = {
    { "selection_final.png", 279, 440, TileColumns, TileRows, drawTile, 0, OnLight },
};
// clang-format on

} // namespace

PictureGroup tilePictures()
{
    const PictureGroup group = {"Application tiles", Pictures,
                                sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
