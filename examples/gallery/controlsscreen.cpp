#include "controlsscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const int left = 20;
const int pitch = 130;
const int buttonWidth = 120;
const int buttonHeight = 40;

const struct {
    const char* text;
    CPushButton::ButtonStyle style;
} styles[] = {
    // clang-format off
    {"Default", CPushButton::DefaultStyle},
    {"Green",   CPushButton::GreenStyle},
    {"Orange",  CPushButton::OrangeStyle},
    {"Red",     CPushButton::RedStyle},
    {"Fixed",   CPushButton::FixedStyle},
    // clang-format on
};

const struct {
    const char* text;
    const char* icon;
    CPushButton::ButtonStyle style;
} icons[] = {
    // clang-format off
    {"Back",    "back.png",     CPushButton::DefaultStyle},
    {"Forward", "Forward.png",  CPushButton::DefaultStyle},
    {"Reload",  "Reload.png",   CPushButton::DefaultStyle},
    {"Stop",    "Stop.png",     CPushButton::DefaultStyle},
    {"",        "fileopen.png", CPushButton::DefaultStyle},
    // clang-format on
};

const struct {
    const char* caption;
    CLabel::WrapMode mode;
} modes[] = {
    // clang-format off
    {"NoWrap",   CLabel::NoWrap},
    {"WordWrap", CLabel::WordWrap},
    {"CharWrap", CLabel::CharWrap},
    // clang-format on
};

const struct {
    const char* text;
    const char* corner;
} values[] = {
    {"Pressure 4.2", "bar"},
    {"Temperature 71", "\xC2\xB0"
                       "C"},
    {"Channel 3", "3/8"},
};

QRect cell(int column, int y)
{
    return QRect(left + column * pitch, y, buttonWidth, buttonHeight);
}

} // namespace

ControlsScreen::ControlsScreen(Panel* panel) : Screen(QLatin1String("Controls"), panel), m_clicks(0)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    addHeading(QLatin1String("Push buttons"), 12);
    addStyles(44);
    addStates(94);
    addIcons(144);
    addHeading(QLatin1String("Labels"), 204);
    addWrapModes(238);
    addHeading(QLatin1String("Labels with corner texts"), 392);
    addCornerTexts(426);
}

void ControlsScreen::addStyles(int y)
{
    for (size_t i = 0; i < sizeof styles / sizeof styles[0]; ++i) {
        CPushButton* button =
            addButton(QLatin1String(styles[i].text), styles[i].style, cell(static_cast<int>(i), y));
        button->setObjectName(QLatin1String("style-") + QLatin1String(styles[i].text));
        connect(button, SIGNAL(clicked()), this, SLOT(buttonClicked()));
    }
}

/// The looks that a finger brings up, held still: pressed, selected, disabled, and a border.
void ControlsScreen::addStates(int y)
{
    CPushButton* pressed =
        addButton(QLatin1String("Pressed"), CPushButton::DefaultStyle, cell(0, y));
    pressed->updateStatus(CPushButton::Pressed);

    CPushButton* selected =
        addButton(QLatin1String("Selected"), CPushButton::GreenStyle, cell(1, y));
    selected->setExtraAttr(CPushButton::SelectedPixmap,
                           CWidgetStyle::getButtonStatus(CWidgetStyle::GreenSelected, true));
    selected->setSelected(true);

    CPushButton* disabled =
        addButton(QLatin1String("Disabled"), CPushButton::FixedStyle, cell(2, y));
    disabled->setTextColor(CWidgetStyle::getColor(CWidgetStyle::NameGroundColor));
    disabled->setEnabled(false);

    CPushButton* plain = new CPushButton(this);
    plain->setText(QLatin1String("No picture"));
    plain->setTextColor(Qt::white);
    plain->move(cell(3, y).topLeft());

    CPushButton* bordered = new CPushButton(this);
    bordered->setText(QLatin1String("Border"));
    bordered->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::ControlGroundColor));
    bordered->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::PanelGroundColor));
    bordered->move(cell(4, y).topLeft());
}

void ControlsScreen::addIcons(int y)
{
    for (size_t i = 0; i < sizeof icons / sizeof icons[0]; ++i) {
        CPushButton* button =
            addButton(QLatin1String(icons[i].text), icons[i].style, cell(static_cast<int>(i), y));
        button->setIcon(QIcon(QLatin1String(":/images/") + QLatin1String(icons[i].icon)));
        button->setIconSize(QSize(24, 24));
        connect(button, SIGNAL(clicked()), this, SLOT(buttonClicked()));
    }
}

void ControlsScreen::addWrapModes(int y)
{
    const QString text = QLatin1String("Close the inlet valve before opening the chamber, and "
                                       "wait until the lamp is green.");
    const int width = 206;
    for (size_t i = 0; i < sizeof modes / sizeof modes[0]; ++i) {
        const int x = left + static_cast<int>(i) * (width + 11);
        CLabel* caption = plainLabel(QLatin1String(modes[i].caption), this);
        caption->setTextColor(CWidgetStyle::getColor(CWidgetStyle::Color3));
        caption->setGeometry(x - 2, y, width, 28);
        CLabel* label = new CLabel(this);
        label->setText(text);
        label->setWrapMode(modes[i].mode);
        label->setBorderWidth(1);
        label->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::Color5));
        label->setBackgroundColor(Qt::white);
        label->setSize(width, 110);
        label->move(x, y + 28);
        label->setObjectName(QLatin1String("label-") + QLatin1String(modes[i].caption));
        connect(label, SIGNAL(clicked()), this, SLOT(labelClicked()));
    }
}

void ControlsScreen::addCornerTexts(int y)
{
    const int width = 206;
    for (size_t i = 0; i < sizeof values / sizeof values[0]; ++i) {
        CLabel* label = new CLabel(this);
        label->setText(QString::fromUtf8(values[i].text));
        label->setCornerText(QString::fromUtf8(values[i].corner));
        label->setSize(width, 32);
        label->move(left + static_cast<int>(i) * (width + 11), y);
        connect(label, SIGNAL(clicked()), this, SLOT(labelClicked()));
    }
}

void ControlsScreen::buttonClicked()
{
    CPushButton* button = qobject_cast<CPushButton*>(sender());
    Q_EMIT hint(QString::fromLatin1("%1 pressed, click %2")
                    .arg(button->getText().isEmpty() ? QLatin1String("Icon") : button->getText())
                    .arg(++m_clicks));
}

void ControlsScreen::labelClicked()
{
    Q_EMIT hint(QLatin1String("Labels can be touched, too"));
}
