#include "controlsscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const int labelWidth = 200;
const int labelPitch = 216;

const struct {
    const char* text;
    CPushButton::ButtonStyle style;
} styles[] = {
    // clang-format off
    {"Details", CPushButton::DefaultStyle},
    {"Start",   CPushButton::GreenStyle},
    {"Hold",    CPushButton::OrangeStyle},
    {"Stop",    CPushButton::RedStyle},
    {"Fixed",   CPushButton::FixedStyle},
    // clang-format on
};

const struct {
    const char* text;
    const char* icon;
    bool enabled;
} icons[] = {
    // clang-format off
    {"Back",    "back.png",     true},
    {"Forward", "Forward.png",  true},
    {"Reload",  "Reload.png",   true},
    {"Cancel",  "Stop.png",     true},
    {"Open",    "fileopen.png", false},
    // clang-format on
};

const struct {
    const char* caption;
    CLabel::WrapMode mode;
    const char* text;
} modes[] = {
    // clang-format off
    {"One line",        CLabel::NoWrap,   "Inlet valve V12 is closed."},
    {"Between words",   CLabel::WordWrap, "Close the inlet valve first (chamber 3 is open)."},
    {"Between letters", CLabel::CharWrap, "QPS-2047-0091-7C3E-A5D0-118F-92B4"},
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

QPoint corner(int column, int y)
{
    return QPoint(layout::margin + column * layout::buttonPitch, y);
}

QRect third(int column, int y, int height)
{
    return QRect(layout::margin + column * labelPitch, y, labelWidth, height);
}

} // namespace

ControlsScreen::ControlsScreen(Panel* panel) : Screen(QLatin1String("Controls"), panel), m_clicks(0)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    addHeading(QLatin1String("Push buttons"), layout::firstHeading);
    addStyles(52);
    addStates(104);
    addIcons(156);
    addHeading(QLatin1String("Labels"), 224);
    addWrapModes(256);
    addHeading(QLatin1String("Labels with corner texts"), 388);
    addCornerTexts(424);
}

void ControlsScreen::addStyles(int y)
{
    for (size_t i = 0; i < sizeof styles / sizeof styles[0]; ++i) {
        CPushButton* button = addButton(QLatin1String(styles[i].text), styles[i].style,
                                        corner(static_cast<int>(i), y));
        button->setObjectName(QLatin1String("style-") + QLatin1String(styles[i].text));
        connect(button, SIGNAL(clicked()), this, SLOT(buttonClicked()));
    }
}

/// The looks that a finger brings up, held still: pressed, selected, disabled; and buttons without
/// a picture.
void ControlsScreen::addStates(int y)
{
    CPushButton* pressed =
        addButton(QLatin1String("Pressed"), CPushButton::DefaultStyle, corner(0, y));
    pressed->setObjectName(QLatin1String("state-pressed"));
    pressed->updateStatus(CPushButton::Pressed);

    CPushButton* selected =
        addButton(QLatin1String("Selected"), CPushButton::GreenStyle, corner(1, y));
    selected->setObjectName(QLatin1String("state-selected"));
    selected->setExtraAttr(CPushButton::SelectedPixmap,
                           CWidgetStyle::getButtonStatus(CWidgetStyle::GreenSelected, true));
    selected->setSelected(true);

    CPushButton* disabled =
        addButton(QLatin1String("Disabled"), CPushButton::DefaultStyle, corner(2, y));
    disabled->setObjectName(QLatin1String("state-disabled"));
    disableButton(disabled);

    CPushButton* plain = new CPushButton(this);
    plain->setText(QLatin1String("No picture"));
    plain->setTextColor(Qt::white);
    plain->move(corner(3, y));

    CPushButton* bordered = new CPushButton(this);
    bordered->setText(QLatin1String("Border"));
    bordered->setBackgroundColor(Qt::white);
    bordered->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    bordered->move(corner(4, y));
}

void ControlsScreen::addIcons(int y)
{
    for (size_t i = 0; i < sizeof icons / sizeof icons[0]; ++i) {
        CPushButton* button = addButton(QLatin1String(icons[i].text), CPushButton::DefaultStyle,
                                        corner(static_cast<int>(i), y));
        const QPixmap icon(QLatin1String(":/images/") + QLatin1String(icons[i].icon));
        button->setIcon(QIcon(icon));
        button->setIconSize(icon.size());
        if (!icons[i].enabled)
            disableButton(button);
        connect(button, SIGNAL(clicked()), this, SLOT(buttonClicked()));
    }
}

void ControlsScreen::addWrapModes(int y)
{
    for (size_t i = 0; i < sizeof modes / sizeof modes[0]; ++i) {
        const int column = static_cast<int>(i);
        addCaption(QLatin1String(modes[i].caption), third(column, y, 28));
        CLabel* label = new CLabel(this);
        label->setText(QLatin1String(modes[i].text));
        label->setWrapMode(modes[i].mode);
        label->setBorderWidth(1);
        label->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::Color26));
        label->setBackgroundColor(Qt::white);
        const QRect place = third(column, y + 28, 88);
        label->setSize(place.width(), place.height());
        label->move(place.topLeft());
        label->setObjectName(QLatin1String("label-") + QLatin1String(modes[i].caption));
        connect(label, SIGNAL(clicked()), this, SLOT(labelClicked()));
    }
}

void ControlsScreen::addCornerTexts(int y)
{
    for (size_t i = 0; i < sizeof values / sizeof values[0]; ++i) {
        CLabel* label = new CLabel(this);
        label->setText(QString::fromUtf8(values[i].text));
        label->setCornerText(QString::fromUtf8(values[i].corner));
        label->setSize(labelWidth, 32);
        label->move(third(static_cast<int>(i), y, 32).topLeft());
        connect(label, SIGNAL(clicked()), this, SLOT(labelClicked()));
    }
}

void ControlsScreen::buttonClicked()
{
    CPushButton* button = qobject_cast<CPushButton*>(sender());
    Q_EMIT hint(QString::fromLatin1("%1 pressed, click %2").arg(button->getText()).arg(++m_clicks));
}

void ControlsScreen::labelClicked()
{
    Q_EMIT hint(QLatin1String("Labels can be touched, too"));
}
