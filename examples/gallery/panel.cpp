#include "panel.h"

#include "controlsscreen.h"
#include "devicesscreen.h"
#include "entryscreen.h"
#include "languagebutton.h"
#include "listsscreen.h"
#include "parmscreen.h"
#include "picturesscreen.h"
#include "progressscreen.h"
#include "themescreen.h"
#include "titlestrip.h"

#include <CPageListWidgetHeader>
#include <CPageListWidgetItem>
#include <CWidgetStyle>
#include <KQWidgetStack>
#include <QApplication>

#include <cstdio>

namespace
{

template <class ScreenClass>
Screen* make(Panel* panel)
{
    return new ScreenClass(panel);
}

// The screens, in the order of the menu.
const struct Entry {
    const char* name;
    const char* label;
    Screen* (*make)(Panel* panel);
} entries[] = {
    // clang-format off
    {"controls",   "Controls",   make<ControlsScreen>},
    {"entry",      "Text entry", make<EntryScreen>},
    {"lists",      "Lists",      make<ListsScreen>},
    {"parameters", "Parameters", make<ParmScreen>},
    {"progress",   "Progress",   make<ProgressScreen>},
    {"devices",    "Devices",    make<DevicesScreen>},
    {"theme",      "Theme",      make<ThemeScreen>},
    {"pictures",   "Pictures",   make<PicturesScreen>},
    // clang-format on
};

const int entryCount = sizeof entries / sizeof entries[0];
const int entryHeight = 50;
const QColor barColor(0x2B, 0x2E, 0x3B);

template <class Control>
void restyleAll(QWidget* parent, const char* name)
{
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QLatin1String(name));
    const QList<Control*> controls = parent->findChildren<Control*>();
    for (int i = 0; i < controls.size(); ++i)
        controls.at(i)->setWidgetStyle(style);
}

KQWidgetStack* stack()
{
    return KQWidgetStack::instance();
}

} // namespace

/// Styled by \a styleFile, which the theme screen rewrites.
Panel::Panel(const QString& styleFile)
    : CWidget(nullptr),
      m_styleFile(styleFile),
      m_strip(nullptr),
      m_back(nullptr),
      m_hint(nullptr),
      m_logging(false)
{
    setSize(CWidgetStyle::getSize(CWidgetStyle::ScreenSize));
    setBackgroundColor(barColor);
    setWindowTitle(QLatin1String("Quorlin front panel"));
    m_strip = new TitleStrip(this);
    addMenu();
    addBottomBar();
    const int column = CWidgetStyle::getSize(CWidgetStyle::LeftColumnSize).width();
    for (int i = 0; i < entryCount; ++i) {
        m_screens.append(entries[i].make(this));
        m_screens.last()->move(column, m_strip->height());
    }
    connect(screen(QLatin1String("devices")), SIGNAL(refreshed()), m_strip, SLOT(refreshDevices()));
    QApplication::setCursorFlashTime(0); // a cursor that blinks wakes the processor
}

QStringList Panel::screenNames()
{
    QStringList names;
    for (int i = 0; i < entryCount; ++i)
        names.append(QLatin1String(entries[i].name));
    return names;
}

Screen* Panel::screen(const QString& name) const
{
    const int index = screenNames().indexOf(name);
    return index < 0 ? 0 : m_screens.at(index);
}

/// Shows a screen of the menu, and nothing below it.
void Panel::showScreen(const QString& name)
{
    Screen* shown = screen(name);
    if (!shown)
        return;
    stack()->popAll();
    for (int i = 0; i < entryCount; ++i)
        m_menu.at(i)->setSelected(m_screens.at(i) == shown);
    setHint(QString());
    shown->show();
    if (!isVisible()) // a hidden panel's screens get no show event of their own
        stack()->push(shown);
    updateBars();
}

/// Shows \a screen above the current one: back() returns from it.
void Panel::openAbove(Screen* screen)
{
    screen->show();
    updateBars();
}

/// Returns from a screen that was opened above another one.
void Panel::back()
{
    if (stack()->size() > 1)
        stack()->pop();
    updateBars();
}

/// Shows \a text in the bottom bar.
void Panel::setHint(const QString& text)
{
    m_hint->setText(text);
    if (m_logging && !text.isEmpty()) {
        printf("%s\n", text.toUtf8().constData());
        fflush(stdout);
    }
}

/// Sets whether what the bottom bar says is printed, too.
void Panel::setLogging(bool enabled)
{
    m_logging = enabled;
}

/// Gives all widgets a font family while the panel runs: rewrites the style file, reads it again
/// and styles the widgets anew.
void Panel::restyle(const QString& family)
{
    if (!CWidgetStyle::setWidgetStyle(m_styleFile, QFont(family)) ||
        !CWidgetStyle::initialize(m_styleFile)) {
        setHint(QString::fromLatin1("%1 cannot be rewritten").arg(m_styleFile));
        return;
    }
    updateWidgetStyle();
    setHint(QString::fromLatin1("The style file now says %1").arg(family));
}

/// The controls that are Qt's own at heart are no CWidgets: the walk over the children does not
/// reach them, nor what else stands in a plain widget. Parameter fields have two parts.
void Panel::updateWidgetStyle()
{
    CWidget::updateWidgetStyle();
    restyleAll<CTopTitleArea>(this, "CTopTitleArea"); // whose class is one of the gallery
    restyleAll<CPushButton>(this, "CPushButton");
    restyleAll<CCheckBox>(this, "CCheckBox");
    restyleAll<CLineEdit>(this, "CLineEdit");
    restyleAll<CComboBox>(this, "CComboBox");
    restyleAll<CPageListWidgetItem>(this, "CComboBox");
    restyleAll<CPageListWidgetHeader>(this, "CComboBox");
    restyleAll<CParmLabel>(this, "CParmLabel");
    restyleAll<CParmLineEdit>(this, "CParmLineEdit");
    restyleAll<CParmComboBox>(this, "CParmComboBox");
    restyleAll<CParmCheckBox>(this, "CParmCheckBox");
}

/// Stops the clock of the title strip at a time that looks well in a picture.
void Panel::freezeTime()
{
    m_strip->freezeTime(QLatin1String("10:24"));
}

void Panel::menuPressed()
{
    const int index = m_menu.indexOf(qobject_cast<CPushButton*>(sender()));
    if (index >= 0)
        showScreen(QLatin1String(entries[index].name));
}

void Panel::addMenu()
{
    const QSize column = CWidgetStyle::getSize(CWidgetStyle::LeftColumnSize);
    for (int i = 0; i < entryCount; ++i) {
        CPushButton* button = addEntry(QLatin1String(entries[i].label), this);
        button->setObjectName(QLatin1String("menu-") + QLatin1String(entries[i].name));
        button->setFixedSize(column.width(), entryHeight);
        button->move(0, m_strip->height() + i * entryHeight);
        connect(button, SIGNAL(clicked()), this, SLOT(menuPressed()), Qt::QueuedConnection);
        m_menu.append(button);
    }
}

/// A button with the looks of a menu entry.
CPushButton* Panel::addEntry(const QString& text, QWidget* parent)
{
    const QPixmap normal = CWidgetStyle::getEntryStatus(CWidgetStyle::EntryFirst);
    CPushButton* button = new CPushButton(parent);
    button->setText(text);
    button->setTextColor(Qt::white);
    button->setBackground(normal);
    button->setExtraAttr(CPushButton::PressedPixmap,
                         CWidgetStyle::getEntryStatus(CWidgetStyle::EntrySecond));
    button->setExtraAttr(CPushButton::ReleasedPixmap, normal);
    button->setExtraAttr(CPushButton::SelectedPixmap,
                         CWidgetStyle::getEntryStatus(CWidgetStyle::EntryThird));
    return button;
}

/// The title's picture upside down: its line belongs above the bar.
void Panel::addBottomBar()
{
    const QSize size = CWidgetStyle::getSize(CWidgetStyle::BottomBarSize);
    CWidget* bar = new CWidget(this);
    bar->setSize(size);
    bar->setBackground(QPixmap(QLatin1String(":/images/UTIL_TB_BKGROUND.png"))
                           .transformed(QTransform().scale(1, -1)));
    bar->move(0, height() - size.height());

    const int column = CWidgetStyle::getSize(CWidgetStyle::LeftColumnSize).width();
    m_back = addEntry(QLatin1String("Back"), bar);
    m_back->setObjectName(QLatin1String("back"));
    m_back->setIcon(QIcon(QLatin1String(":/images/back.png")));
    m_back->setIconSize(QSize(30, 30));
    m_back->setFixedSize(column, size.height() - 1);
    m_back->move(0, 1);
    connect(m_back, SIGNAL(clicked()), this, SLOT(back()));

    m_hint = plainLabel(QString(), bar);
    m_hint->setTextColor(Qt::white);
    m_hint->setGeometry(column + layout::margin - 2, 8, 520, 28);
    addState(bar);
    CPushButton* language = new LanguageButton(bar);
    language->move(656, 7);
}

void Panel::addState(QWidget* bar)
{
    CWidget* lamp = new CWidget(bar);
    lamp->setSize(16, 16);
    lamp->setBackground(
        CWidgetStyle::getLEDStatus(CWidgetStyle::LedState1, CWidgetStyle::SmallIcon));
    lamp->move(708, 14);
    CLabel* state = plainLabel(QLatin1String("Ready"), bar);
    state->setTextColor(Qt::white);
    state->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    state->setGeometry(728, 8, width() - layout::margin - 728 + 2, 28);
}

void Panel::updateBars()
{
    Screen* top = qobject_cast<Screen*>(stack()->top());
    m_strip->setScreenTitle(top ? top->title() : QString());
    m_back->setVisible(stack()->size() > 1);
}
