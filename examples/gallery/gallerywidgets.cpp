#include "gallerywidgets.h"

#include <CWidgetStyle>
#include <QPainter>

namespace
{

const int headingPixelSize = 17;
const int textMargin = 2; // of a label, left of its text
const qreal plateRadius = 6;
const QColor plateColor(0xD2, 0xD4, 0xDB);
const QColor dimColor(0x52, 0x56, 0x68);

QPixmap plate(const QSize& size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plateColor);
    painter.drawRoundedRect(QRectF(pixmap.rect()), plateRadius, plateRadius);
    return pixmap;
}

QPixmap tinted(QPixmap pixmap, const QColor& color)
{
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

} // namespace

Heading::Heading(const QString& text, QWidget* parent) : CLabel(parent)
{
    setText(text);
    setTextColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    setBackgroundColor(QColor());
    Heading::updateWidgetStyle();
}

void Heading::updateWidgetStyle()
{
    QFont heading = font();
    const QList<Style> styles = CWidgetStyle::getWidgetStyle(QLatin1String("CLabel")).styles;
    if (!styles.isEmpty())
        heading.setFamily(styles.last().font.family());
    heading.setPixelSize(headingPixelSize);
    heading.setBold(true);
    setFont(heading);
}

Screen::Screen(const QString& title, QWidget* parent) : CWidget(parent), m_title(title)
{
    setSize(CWidgetStyle::getSize(CWidgetStyle::BesideColumnSize));
    setBackgroundColor(screenColor());
    hide();
    setAutoManagment(true);
}

QString Screen::title() const
{
    return m_title;
}

void Screen::prepareShot()
{
}

int Screen::contentWidth() const
{
    return width() - 2 * layout::margin;
}

Heading* Screen::addHeading(const QString& text, int y, int x)
{
    Heading* heading = new Heading(text, this);
    heading->setGeometry(x - textMargin, y, width() - layout::margin - x + textMargin,
                         layout::headingHeight);
    return heading;
}

/// The text begins at the left edge of \a place.
CLabel* Screen::addCaption(const QString& text, const QRect& place)
{
    CLabel* caption = plainLabel(text, this);
    caption->setTextColor(captionColor());
    caption->setGeometry(place.adjusted(-textMargin, 0, 0, 0));
    return caption;
}

CPushButton* Screen::addButton(const QString& text, CPushButton::ButtonStyle style,
                               const QPoint& corner)
{
    CPushButton* button = new CPushButton(this);
    button->setStyle(style, true);
    button->setBackgroundColor(QColor()); // the corners of the picture let the screen through
    button->setAutoFillBackground(false);
    button->setText(text);
    button->move(corner);
    return button;
}

CPushButton* Screen::addMainButton(const QString& text)
{
    const int x = width() - layout::margin - layout::buttonWidth;
    return addButton(text, CPushButton::GreenStyle, QPoint(x, layout::lastButton));
}

QColor screenColor()
{
    return CWidgetStyle::getColor(CWidgetStyle::Color27);
}

QColor captionColor()
{
    return QColor(0x5A, 0x5E, 0x70);
}

CLabel* plainLabel(const QString& text, QWidget* parent)
{
    CLabel* label = new CLabel(parent);
    label->setBackgroundColor(QColor());
    label->setText(text);
    return label;
}

void disableButton(CPushButton* button)
{
    button->setEnabled(false);
    button->setBackground(plate(button->size()));
    button->setTextColor(dimColor);
    QIcon icon = button->icon();
    if (icon.isNull())
        return;
    icon.addPixmap(tinted(icon.pixmap(button->iconSize()), dimColor), QIcon::Disabled);
    button->setIcon(icon);
}
