#include "themescreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const int left = 20;

const char* const families[] = {
    "Arial",       "Liberation Serif", "Liberation Mono", "Liberation Sans Narrow",
    "DejaVu Sans", "DejaVu Serif",
};

const int paletteSize = 29;

} // namespace

ThemeScreen::ThemeScreen(Panel* panel) : Screen(QLatin1String("Theme"), panel), m_panel(panel)
{
    addHeading(QLatin1String("Font family of the style file"), 12);
    addFamilies(46);
    addHeading(QLatin1String("Palette"), 170);
    addPalette(204);
}

void ThemeScreen::addFamilies(int y)
{
    const int columns = 3;
    for (size_t i = 0; i < sizeof families / sizeof families[0]; ++i) {
        const int column = static_cast<int>(i) % columns;
        const int row = static_cast<int>(i) / columns;
        const QRect place(left + column * 217, y + row * 52, 206, 42);
        CPushButton* button =
            addButton(QLatin1String(families[i]), CPushButton::DefaultStyle, place);
        button->setObjectName(QLatin1String("family-") + QLatin1String(families[i]));
        connect(button, SIGNAL(clicked()), this, SLOT(familyClicked()));
    }
}

void ThemeScreen::addPalette(int y)
{
    const int columns = 8;
    for (int code = 0; code < paletteSize; ++code) {
        const QColor color = CWidgetStyle::getColor(static_cast<CWidgetStyle::ColorCode>(code));
        CLabel* swatch = new CLabel(this);
        swatch->setText(QString::number(code));
        swatch->setAlignment(Qt::AlignCenter);
        swatch->setTextColor(qGray(color.rgb()) > 120 ? Qt::black : Qt::white);
        swatch->setBackgroundColor(color);
        swatch->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::Color7));
        swatch->setBorderWidth(1);
        swatch->setSize(74, 60);
        swatch->move(left + code % columns * 81, y + code / columns * 68);
    }
}

void ThemeScreen::familyClicked()
{
    CPushButton* button = qobject_cast<CPushButton*>(sender());
    m_panel->restyle(button->getText());
}
