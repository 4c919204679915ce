#include "contactsheet.h"

#include "palette.h"
#include "panelsample.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QVector>

namespace
{

// Layout of the sheet, px
const int SheetWidth = 1600;
const int Margin = 32;
const int HeaderHeight = 84;
const int HeadingHeight = 40;
const int GroupGap = 14;
const int ItemGap = 10;
const int SwatchPadding = 8;
const int LabelHeight = 36;
const int LineHeight = 16;
const int SwatchRadius = 3;

// Type sizes, px
const int TitleSize = 28;
const int HeadingSize = 17;
const int NameSize = 12;
const int DetailSize = 11;

const QRgb SheetGround = 0xfff4f5fa;
const QRgb LightSwatch = 0xffe7e9eb;
const QRgb DarkSwatch = Palette::Bar;
const QRgb BlackSwatch = Palette::Black;
const QRgb SwatchEdge = 0xffc3c5d8;
const QRgb NameColour = 0xff2b2e3a;
const QRgb DetailColour = 0xff6b6f82;

struct Item {
    QImage image;
    QString name;
    QString detail;
    Ground ground;
    QRect place; // swatches and label
};

struct Block {
    QString title;
    int top;
    QVector<Item> items;
};

QFont sheetFont(int size, bool bold)
{
    QFont font(QString::fromLatin1("Liberation Sans"));
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

QSize swatchSize(const Item& item)
{
    return QSize(item.image.width() + 2 * SwatchPadding, item.image.height() + 2 * SwatchPadding);
}

// Width of a text in the font, measured without the calls that differ between Qt versions.
int widthOf(const QFont& font, const QString& text)
{
    return QFontMetrics(font).boundingRect(text).width() + 2;
}

// Wide pictures have their two swatches one below the other.
bool isStacked(const Item& item)
{
    return item.image.width() > 3 * item.image.height();
}

QSize itemSize(const Item& item)
{
    QSize swatches = swatchSize(item);
    if (item.ground == OnBoth && isStacked(item))
        swatches.setHeight(2 * swatches.height());
    else if (item.ground == OnBoth)
        swatches.setWidth(2 * swatches.width());
    const int label = qMax(widthOf(sheetFont(NameSize, true), item.name),
                           widthOf(sheetFont(DetailSize, false), item.detail));
    return QSize(qMax(swatches.width(), label), swatches.height() + LabelHeight);
}

QString detailOf(const Picture& picture)
{
    const QSize cell = cellSize(picture);
    QString detail = QString::fromLatin1("%1 x %2").arg(picture.width).arg(picture.height);
    const int cells = picture.columns * picture.rows;
    if (cells > 1)
        detail += QString::fromLatin1("  (%1 of %2 x %3)")
                      .arg(cells)
                      .arg(cell.width())
                      .arg(cell.height());
    return detail;
}

Item itemOf(const Picture& picture)
{
    Item item;
    item.image = render(picture);
    item.name = QString::fromLatin1(picture.name);
    item.detail = detailOf(picture);
    item.ground = picture.ground;
    return item;
}

// Lets the labels of the items from \a first on share one line.
void alignLine(QVector<Item>& items, int first, int last, int height)
{
    for (int i = first; i < last; ++i)
        items[i].place.translate(0, height - items.at(i).place.height());
}

// Places the items in lines from \a top on; returns where the last line ends.
int placeItems(QVector<Item>& items, int top)
{
    int x = Margin;
    int lineHeight = 0;
    int lineStart = 0;
    for (int i = 0; i < items.count(); ++i) {
        const QSize size = itemSize(items.at(i));
        if (x > Margin && x + size.width() > SheetWidth - Margin) {
            alignLine(items, lineStart, i, lineHeight);
            x = Margin;
            top += lineHeight + ItemGap;
            lineHeight = 0;
            lineStart = i;
        }
        items[i].place = QRect(QPoint(x, top), size);
        x += size.width() + ItemGap;
        lineHeight = qMax(lineHeight, size.height());
    }
    alignLine(items, lineStart, items.count(), lineHeight);
    return top + lineHeight;
}

Block blockOf(const PictureGroup& group, int top)
{
    Block block;
    block.title = QString::fromLatin1(group.title);
    block.top = top;
    for (int i = 0; i < group.count; ++i)
        block.items.append(itemOf(group.pictures[i]));
    return block;
}

void drawText(QPainter& painter, const QRect& box, int size, bool bold, QRgb colour,
              const QString& text)
{
    painter.setFont(sheetFont(size, bold));
    painter.setPen(QColor(colour));
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, text);
}

void drawSwatch(QPainter& painter, const QRect& box, QRgb ground, const QImage& image)
{
    painter.setPen(QColor(SwatchEdge));
    painter.setBrush(QColor(ground));
    painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), SwatchRadius, SwatchRadius);
    painter.drawImage(box.left() + SwatchPadding, box.top() + SwatchPadding, image);
}

QRgb firstSwatch(Ground ground)
{
    switch (ground) {
    case OnDark:
        return DarkSwatch;
    case OnBlack:
        return BlackSwatch;
    default:
        return LightSwatch;
    }
}

void drawItem(QPainter& painter, const Item& item)
{
    const QRect swatch(item.place.topLeft(), swatchSize(item));
    drawSwatch(painter, swatch, firstSwatch(item.ground), item.image);
    if (item.ground == OnBoth && isStacked(item))
        drawSwatch(painter, swatch.translated(0, swatch.height()), DarkSwatch, item.image);
    else if (item.ground == OnBoth)
        drawSwatch(painter, swatch.translated(swatch.width(), 0), DarkSwatch, item.image);

    const QRect name(item.place.left(), item.place.bottom() - LabelHeight + 3,
                     item.place.width() + ItemGap, LineHeight);
    drawText(painter, name, NameSize, true, NameColour, item.name);
    drawText(painter, name.translated(0, LineHeight), DetailSize, false, DetailColour, item.detail);
}

void drawBlock(QPainter& painter, const Block& block)
{
    const QRect heading(Margin, block.top, SheetWidth - 2 * Margin, HeadingHeight);
    drawText(painter, heading, HeadingSize, true, Palette::Violet, block.title);
    painter.fillRect(QRect(heading.left(), heading.bottom() - 7, heading.width(), 1),
                     QColor(SwatchEdge));
    for (int i = 0; i < block.items.count(); ++i)
        drawItem(painter, block.items.at(i));
}

// The last block leaves room at its right for the pictures in use.
void drawSample(QPainter& painter, const QList<PictureGroup>& groups, const Block& beside)
{
    const QImage sample = drawPanelSample(groups);
    const QRect last = beside.items.last().place;
    const QPoint corner(SheetWidth - Margin - sample.width(), last.top());
    painter.drawImage(corner, sample);
    const QRect label(corner.x(), last.bottom() - LabelHeight + 3, sample.width(), LineHeight);
    drawText(painter, label, NameSize, true, NameColour, QString::fromLatin1("In use"));
    drawText(painter, label.translated(0, LineHeight), DetailSize, false, DetailColour,
             QString::fromLatin1("A panel and keys put together from the pictures above"));
}

void drawHeader(QPainter& painter, int pictures)
{
    const QRect header(0, 0, SheetWidth, HeaderHeight);
    painter.fillRect(header, QColor(Palette::Bar));
    painter.fillRect(QRect(0, HeaderHeight - 1, SheetWidth, 1), QColor(Palette::Violet));
    const QRect text = header.adjusted(Margin, 12, -Margin, -38);
    drawText(painter, text, TitleSize, true, Palette::White, QString::fromLatin1("Pictures"));
    drawText(painter, text.translated(0, 31), NameSize + 1, false, Palette::Lavender,
             QString::fromLatin1("%1 images, shown in their own size on the backgrounds they are "
                                 "meant for")
                 .arg(pictures));
}

} // namespace

QImage drawContactSheet(const QList<PictureGroup>& groups)
{
    QVector<Block> blocks;
    int pictures = 0;
    int y = HeaderHeight + GroupGap;
    for (int i = 0; i < groups.count(); ++i) {
        Block block = blockOf(groups.at(i), y);
        y = placeItems(block.items, y + HeadingHeight) + GroupGap;
        pictures += block.items.count();
        blocks.append(block);
    }

    QImage sheet(SheetWidth, y + Margin - GroupGap, QImage::Format_RGB32);
    sheet.fill(SheetGround);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    drawHeader(painter, pictures);
    for (int i = 0; i < blocks.count(); ++i)
        drawBlock(painter, blocks.at(i));
    drawSample(painter, groups, blocks.last());
    return sheet;
}
