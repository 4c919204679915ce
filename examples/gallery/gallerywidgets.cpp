#include "gallerywidgets.h"

#include <CWidgetStyle>

namespace
{

const int headingHeight = 28;
const int headingPixelSize = 17;
const int margin = 20;

} // namespace

Heading::Heading(const QString& text, QWidget* parent) : CLabel(parent)
{
    setText(text);
    setTextColor(CWidgetStyle::getColor(CWidgetStyle::PanelGroundColor));
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
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::Color27));
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

Heading* Screen::addHeading(const QString& text, int y)
{
    Heading* heading = new Heading(text, this);
    heading->setGeometry(margin - 2, y, width() - 2 * margin, headingHeight);
    return heading;
}

CPushButton* Screen::addButton(const QString& text, CPushButton::ButtonStyle style,
                               const QRect& place)
{
    CPushButton* button = new CPushButton(this);
    button->setStyle(style, true);
    button->setBackgroundColor(QColor()); // the corners of the picture let the screen through
    button->setAutoFillBackground(false);
    button->setText(text);
    button->setFixedSize(place.size());
    button->move(place.topLeft());
    return button;
}

CLabel* plainLabel(const QString& text, QWidget* parent)
{
    CLabel* label = new CLabel(parent);
    label->setBackgroundColor(QColor());
    label->setText(text);
    return label;
}
