#include "paneltexts.h"

#include "pages/combobox.h"
#include "picturesscreen.h"
#include "support/colors.h"
#include "widgets/checkbox.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/pushbutton.h"
#include "widgets/toptitlearea.h"

#include <QImage>

namespace
{

QRect placeOf(QWidget* widget, QWidget* panel)
{
    return QRect(widget->mapTo(panel, QPoint(0, 0)), widget->size()) & panel->rect();
}

/// The part of the panel's picture that a widget shows.
QImage pictureOf(QWidget* panel, const QRect& place)
{
    QImage image(place.size(), QImage::Format_RGB32);
    image.fill(0);
    panel->render(&image, QPoint(), QRegion(place));
    return image;
}

ShownText compared(const QString& text, const QRect& place, const QImage& with,
                   const QImage& without)
{
    ShownText shown = {text, QRect(), 0.0};
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) == without.pixel(x, y))
                continue;
            shown.rect |= QRect(place.topLeft() + QPoint(x, y), QSize(1, 1));
            shown.contrast =
                qMax(shown.contrast, colors::contrast(with.pixel(x, y), without.pixel(x, y)));
        }
    }
    return shown;
}

template <class Widget>
void append(QList<ShownText>* texts, QWidget* panel, QString (Widget::*text)() const,
            void (Widget::*setText)(const QString&))
{
    const QList<Widget*> widgets = panel->findChildren<Widget*>();
    for (int i = 0; i < widgets.size(); ++i) {
        Widget* widget = widgets.at(i);
        const QString shown = (widget->*text)();
        if (shown.isEmpty() || !widget->isVisible())
            continue;
        const QRect place = placeOf(widget, panel);
        const QImage with = pictureOf(panel, place);
        (widget->*setText)(QString());
        texts->append(compared(shown, place, with, pictureOf(panel, place)));
        (widget->*setText)(shown);
    }
}

/// A text that cannot be taken away, on the plain colour of the right upper corner of \a place.
void appendPlain(QList<ShownText>* texts, QWidget* panel, const QString& text, const QRect& place)
{
    const QImage with = pictureOf(panel, place);
    QImage without(with.size(), with.format());
    without.fill(with.pixel(with.width() - 1, 0));
    texts->append(compared(text, place, with, without));
}

void appendComboBoxes(QList<ShownText>* texts, QWidget* panel)
{
    const QList<CComboBox*> boxes = panel->findChildren<CComboBox*>();
    for (int i = 0; i < boxes.size(); ++i) {
        if (boxes.at(i)->isVisible() && !boxes.at(i)->currentText().isEmpty())
            appendPlain(texts, panel, boxes.at(i)->currentText(),
                        placeOf(boxes.at(i), panel).adjusted(3, 3, -30, -3));
    }
}

/// Below a picture its name, and below that its size.
void appendPictureCells(QList<ShownText>* texts, QWidget* panel)
{
    const QList<PictureCell*> cells = panel->findChildren<PictureCell*>();
    for (int i = 0; i < cells.size(); ++i) {
        if (!cells.at(i)->isVisible())
            continue;
        const QRect place = placeOf(cells.at(i), panel).adjusted(2, 0, -2, -2);
        const QRect size(place.left(), place.bottom() - 13, place.width(), 14);
        appendPlain(texts, panel, cells.at(i)->name(), size.translated(0, -16));
        appendPlain(texts, panel, cells.at(i)->name(), size);
    }
}

} // namespace

QList<ShownText> textsOf(QWidget* panel)
{
    QList<ShownText> texts;
    append<CLabel>(&texts, panel, &CLabel::text, &CLabel::setText);
    append<CLabel>(&texts, panel, &CLabel::cornerText, &CLabel::setCornerText);
    append<CPushButton>(&texts, panel, &CPushButton::getText, &CPushButton::setText);
    append<CTopTitleArea>(&texts, panel, &CTopTitleArea::title, &CTopTitleArea::setTitle);
    append<CCheckBox>(&texts, panel, &CCheckBox::text, &CCheckBox::setText);
    append<CLineEdit>(&texts, panel, &CLineEdit::text, &CLineEdit::setText);
    appendComboBoxes(&texts, panel);
    appendPictureCells(&texts, panel);
    return texts;
}
