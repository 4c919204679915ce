#include "themescreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const struct {
    const char* name;
    const char* family;
} families[] = {
    // clang-format off
    {"Arial",  "Arial"},
    {"Serif",  "Liberation Serif"},
    {"Mono",   "Liberation Mono"},
    {"Narrow", "Liberation Sans Narrow"},
    {"DejaVu", "DejaVu Sans"},
    // clang-format on
};

const int swatchColumns = 8;
const QSize swatchSize(72, 60);
const QSize swatchPitch(80, 68);
const int mostGrayUnderWhite = 110;
const int paletteSize = 29;

} // namespace

ThemeScreen::ThemeScreen(Panel* panel) : Screen(QLatin1String("Theme"), panel), m_panel(panel)
{
    addHeading(QLatin1String("Font family of the style file"), layout::firstHeading);
    addFamilies(52);
    addHeading(QLatin1String("Palette"), 132);
    addPalette(168);
}

QStringList ThemeScreen::families()
{
    QStringList names;
    for (size_t i = 0; i < sizeof ::families / sizeof ::families[0]; ++i)
        names.append(QLatin1String(::families[i].family));
    return names;
}

void ThemeScreen::addFamilies(int y)
{
    for (size_t i = 0; i < sizeof ::families / sizeof ::families[0]; ++i) {
        const QPoint corner(layout::margin + static_cast<int>(i) * layout::buttonPitch, y);
        CPushButton* button =
            addButton(QLatin1String(::families[i].name), CPushButton::DefaultStyle, corner);
        button->setObjectName(QLatin1String("family-") + QLatin1String(::families[i].family));
        button->setExtraAttr(CPushButton::SelectedPixmap,
                             CWidgetStyle::getButtonStatus(CWidgetStyle::GreenSelected, true));
        // Lifting the finger shows the released look: the selected one comes after it.
        connect(button, SIGNAL(clicked()), this, SLOT(familyClicked()), Qt::QueuedConnection);
        m_families.append(button);
    }
    showCurrent();
}

void ThemeScreen::addPalette(int y)
{
    for (int code = 0; code < paletteSize; ++code) {
        const QColor color = CWidgetStyle::getColor(static_cast<CWidgetStyle::ColorCode>(code));
        CLabel* swatch = new CLabel(this);
        swatch->setText(QString::number(code));
        swatch->setAlignment(Qt::AlignCenter);
        swatch->setTextColor(qGray(color.rgb()) > mostGrayUnderWhite ? Qt::black : Qt::white);
        swatch->setBackgroundColor(color);
        swatch->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::Color26));
        swatch->setBorderWidth(1);
        swatch->setSize(swatchSize.width(), swatchSize.height());
        swatch->move(layout::margin + code % swatchColumns * swatchPitch.width(),
                     y + code / swatchColumns * swatchPitch.height());
    }
}

/// The family that the style file names for labels is the selected one.
void ThemeScreen::showCurrent()
{
    const QList<Style> styles = CWidgetStyle::getWidgetStyle(QLatin1String("CLabel")).styles;
    const QString current = styles.isEmpty() ? QString() : styles.last().font.family();
    for (int i = 0; i < m_families.size(); ++i)
        m_families.at(i)->setSelected(QLatin1String(::families[i].family) == current);
}

void ThemeScreen::familyClicked()
{
    const int index = m_families.indexOf(qobject_cast<CPushButton*>(sender()));
    if (index >= 0)
        m_panel->restyle(QLatin1String(::families[index].family));
    showCurrent();
}
