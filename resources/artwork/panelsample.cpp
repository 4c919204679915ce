#include "panelsample.h"

#include "palette.h"
#include "shape.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>

#include <cstring>

namespace
{

// px
const QSize SampleSize(1196, 456);
const QRect PanelBox(0, 0, 800, 456);
const QRect KeypadBox(816, 0, 380, 456);
const QRect EntryBox(835, 22, 341, 54);
const QRect BackspaceBox(1126, 350, 50, 40);
const int TextSize = 13;

const QRgb Page = 0xffe7e9eb;
const QRgb White = Palette::White;
const QRgb Black = Palette::Black;

enum Place {
    Middle,
    Left
};

// One cell of a picture with a text, or a text alone where the picture is empty. A width of 0
// leaves the cell its own size.
struct Part {
    const char* picture;
    int cell;
    int x;
    int y;
    int width;
    int height;
    const char* text;
    QRgb colour;
    Place place;
};

const char Menu[] = "menuentry_top-140x50.png";
const char Title[] = "UTIL_TB_BKGROUND.png";
const char Gray[] = "RCTB_BUTTONGRAY_3states.png";
const char Green[] = "RCTB_BUTTONGREEN_3states.png";
const char Orange[] = "RCTB_BUTTONORANGE_3states.png";
const char Red[] = "RCTB_BUTTONRED_3states.png";
const char BigGray[] = "BIG_RCTB_BUTTONGRAY_3states.png";
const char BigGreen[] = "BIG_RCTB_BUTTONGREEN_3states.png";
const char BigOrange[] = "BIG_RCTB_BUTTONORANGE_3states.png";
const char BigRed[] = "BIG_RCTB_BUTTONRED_3states.png";
const char Group[] = "group-background_120X30.png";
const char Lamp[] = "BB_LIGHT_4states.png";
const char Check[] = "checkbox_3states.png";
const char Tiles[] = "selection_final.png";
const char PageArrow[] = "hspinbox_arrow_20.png";
const char NumKey[] = "NUMKB_BUTTON.png";

// clang-format off
const Part Parts[] = {
    { Title, 0, 0, 0, 800, 44, "", White, Middle },
    { "", 0, 20, 0, 300, 44, "Pump station 3", White, Left },
    { "MISC_PROGCLK_11states.png", 3, 630, 7, 0, 0, "", White, Middle },
    { "object-locked.png", 0, 680, 14, 0, 0, "", White, Middle },
    { "wireless-connected.png", 0, 714, 5, 0, 0, "", White, Middle },
    { "TB_CLOSE_3states.png", 0, 756, 0, 0, 0, "", White, Middle },
    { Title, 0, 0, 44, 800, 50, "", White, Middle },
    { Menu, 0, 0, 44, 0, 0, "Overview", White, Middle },
    { Menu, 2, 140, 44, 0, 0, "Control", White, Middle },
    { Menu, 0, 280, 44, 0, 0, "Trends", White, Middle },
    { Menu, 1, 420, 44, 0, 0, "Alarms", White, Middle },
    { Menu, 3, 560, 44, 0, 0, "Service", 0xffb4b7c4, Middle },

    { Green, 0, 24, 118, 0, 0, "Start", White, Middle },
    { Red, 0, 24, 168, 0, 0, "Stop", White, Middle },
    { Orange, 0, 24, 218, 0, 0, "Hold", White, Middle },
    { Gray, 0, 24, 268, 0, 0, "Details", White, Middle },
    { Gray, 1, 24, 318, 0, 0, "Pressed", White, Middle },
    { Gray, 2, 24, 368, 0, 0, "Fixed", White, Middle },
    { BigGreen, 2, 164, 118, 0, 0, "Selected", White, Middle },
    { BigRed, 2, 164, 168, 0, 0, "Selected", White, Middle },
    { BigOrange, 2, 164, 218, 0, 0, "Selected", White, Middle },
    { BigGray, 0, 164, 268, 0, 0, "Settings", White, Middle },
    { BigGreen, 1, 164, 318, 0, 0, "Pressed", White, Middle },
    { BigRed, 1, 164, 368, 0, 0, "Pressed", White, Middle },

    { Group, 0, 312, 118, 200, 30, "Status", Black, Middle },
    { Lamp, 1, 320, 160, 0, 0, "", White, Middle },
    { "", 0, 352, 160, 150, 20, "Ready", Black, Left },
    { Lamp, 2, 320, 188, 0, 0, "", White, Middle },
    { "", 0, 352, 188, 150, 20, "Notice", Black, Left },
    { Lamp, 3, 320, 216, 0, 0, "", White, Middle },
    { "", 0, 352, 216, 150, 20, "Warning", Black, Left },
    { Lamp, 4, 320, 244, 0, 0, "", White, Middle },
    { "", 0, 352, 244, 150, 20, "Fault", Black, Left },
    { Lamp, 5, 320, 272, 0, 0, "", White, Middle },
    { "", 0, 352, 272, 150, 20, "Remote", Black, Left },
    { Lamp, 0, 320, 300, 0, 0, "", White, Middle },
    { "", 0, 352, 300, 150, 20, "Off", Black, Left },
    { Check, 1, 322, 334, 0, 0, "", White, Middle },
    { "", 0, 352, 332, 150, 20, "Run at night", Black, Left },
    { Check, 0, 322, 360, 0, 0, "", White, Middle },
    { "", 0, 352, 358, 150, 20, "Print protocol", Black, Left },
    { Check, 2, 322, 386, 0, 0, "", White, Middle },
    { "", 0, 352, 384, 150, 20, "All channels", Black, Left },

    { Group, 0, 540, 118, 236, 30, "Applications and devices", Black, Middle },
    { Tiles, 1, 540, 158, 0, 0, "", White, Middle },
    { Tiles, 6, 643, 158, 0, 0, "", White, Middle },
    { Tiles, 10, 540, 210, 0, 0, "", White, Middle },
    { Tiles, 12, 643, 210, 0, 0, "", White, Middle },
    { "computer-laptop.png", 0, 540, 264, 0, 0, "", White, Middle },
    { "mobile-phone.png", 0, 588, 264, 0, 0, "", White, Middle },
    { "bluetooth-device.png", 0, 636, 264, 0, 0, "", White, Middle },
    { "zoom.png", 0, 692, 269, 0, 0, "", White, Middle },
    { Gray, 0, 540, 308, 52, 40, "", White, Middle },
    { "back.png", 0, 551, 313, 0, 0, "", White, Middle },
    { Gray, 0, 600, 308, 52, 40, "", White, Middle },
    { "Forward.png", 0, 611, 313, 0, 0, "", White, Middle },
    { Gray, 0, 660, 308, 52, 40, "", White, Middle },
    { "Reload.png", 0, 671, 313, 0, 0, "", White, Middle },
    { Gray, 0, 720, 308, 52, 40, "", White, Middle },
    { "fileopen.png", 0, 730, 312, 0, 0, "", White, Middle },
    { "backlight.png", 2, 540, 364, 0, 0, "", White, Middle },
    { "spin_minus.png", 0, 600, 370, 0, 0, "", White, Middle },
    { "spin_plus.png", 0, 636, 370, 0, 0, "", White, Middle },
    { "zoom_in.png", 0, 684, 373, 0, 0, "", White, Middle },
    { "zoom_out.png", 0, 717, 373, 0, 0, "", White, Middle },
    { PageArrow, 1, 312, 428, 0, 0, "", White, Middle },
    { "", 0, 338, 428, 124, 20, "Page 2 of 5", Black, Middle },
    { PageArrow, 3, 462, 428, 0, 0, "", White, Middle },

    { "", 0, 850, 24, 200, 27, "Set point", 0xff6b6f82, Left },
    { "", 0, 850, 46, 200, 27, "24.5 m3/h", Black, Left },
    { NumKey, 0, 874, 98, 80, 50, "1", White, Middle },
    { NumKey, 0, 966, 98, 80, 50, "2", White, Middle },
    { NumKey, 0, 1058, 98, 80, 50, "3", White, Middle },
    { NumKey, 0, 874, 160, 80, 50, "4", White, Middle },
    { NumKey, 2, 966, 160, 80, 50, "5", Black, Middle },
    { NumKey, 0, 1058, 160, 80, 50, "6", White, Middle },
    { NumKey, 0, 874, 222, 80, 50, "7", White, Middle },
    { NumKey, 1, 966, 222, 80, 50, "8", White, Middle },
    { NumKey, 0, 1058, 222, 80, 50, "9", White, Middle },
    { NumKey, 0, 874, 284, 80, 50, "+/-", White, Middle },
    { NumKey, 0, 966, 284, 80, 50, "0", White, Middle },
    { "NUMKB_DEL_BTN.png", 0, 835, 350, 0, 0, "Del", White, Middle },
    { "NUMKB_DELALL_BTN.png", 0, 891, 350, 0, 0, "Del All", White, Middle },
    { "NUMKB_DOT_BTN.png", 0, 974, 350, 0, 0, ".", White, Middle },
    { "NUMKB_APPLY_BTN.png", 0, 1030, 350, 0, 0, "Apply", White, Middle },
    { "NUMKB_BACKSPACE_BTN.png", 0, 1126, 350, 0, 0, "", White, Middle },
    { "GENKB_SHIFT_BTN.png", 0, 835, 400, 0, 0, "Shift", White, Middle },
    { "GENKB_BUTTON.png", 0, 896, 400, 0, 0, "q", White, Middle },
    { "GENKB_BUTTON.png", 2, 947, 400, 0, 0, "w", Black, Middle },
    { "GENKB_SYMBOL_BTN.png", 2, 998, 400, 0, 0, "Symbol", Black, Middle },
    { "HEXKB_APPLY_BTN.png", 2, 1086, 407, 0, 0, "Apply", Black, Middle },
};
// clang-format on

const int PartCount = sizeof(Parts) / sizeof(Parts[0]);

const Picture* findPicture(const QList<PictureGroup>& groups, const char* name)
{
    for (int i = 0; i < groups.count(); ++i) {
        for (int k = 0; k < groups.at(i).count; ++k) {
            if (std::strcmp(groups.at(i).pictures[k].name, name) == 0)
                return &groups.at(i).pictures[k];
        }
    }
    return nullptr;
}

QImage cellOf(const Picture& picture, int index)
{
    const QSize cell = cellSize(picture);
    const QPoint corner(index % picture.columns * cell.width(),
                        index / picture.columns * cell.height());
    return render(picture).copy(QRect(corner, cell));
}

void drawPart(QPainter& painter, const Part& part, const Picture* picture)
{
    QRect box(part.x, part.y, part.width, part.height);
    if (picture) {
        const QImage image = cellOf(*picture, part.cell);
        if (part.width == 0)
            box.setSize(image.size());
        painter.drawImage(box, image);
    }
    painter.setPen(QColor(part.colour));
    painter.drawText(box,
                     Qt::AlignVCenter | (part.place == Left ? Qt::AlignLeft : Qt::AlignHCenter),
                     QString::fromLatin1(part.text));
}

void drawGrounds(QPainter& painter)
{
    painter.fillRect(PanelBox, QColor(Page));
    painter.fillRect(KeypadBox, QColor(Palette::Black));
    painter.fillRect(EntryBox, QColor(Palette::White));
}

// The arrow that the backspace key draws over its picture.
void drawBackspaceArrow(QPainter& painter)
{
    static const Scheme colours = {White, White, White, White};
    painter.save();
    painter.translate(BackspaceBox.center());
    drawShape(painter, "Fi M -4 -4 L -8 0 L -4 4 Z;Bi2 M -4 0 L 9 0", colours);
    painter.restore();
}

} // namespace

QImage drawPanelSample(const QList<PictureGroup>& groups)
{
    QImage sample(SampleSize, QImage::Format_ARGB32_Premultiplied);
    sample.fill(0);
    QPainter painter(&sample);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QString::fromLatin1("Liberation Sans"));
    font.setPixelSize(TextSize);
    font.setBold(true);
    painter.setFont(font);
    drawGrounds(painter);
    for (int i = 0; i < PartCount; ++i)
        drawPart(painter, Parts[i], findPicture(groups, Parts[i].picture));
    drawBackspaceArrow(painter);
    return sample;
}
