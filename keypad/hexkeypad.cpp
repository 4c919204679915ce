#include "keypad/hexkeypad.h"

#include "keypad/keycodes.h"
#include "keypad/keygrid_p.h"
#include "style/table_p.h"

namespace
{

const keygrid::Key keys[] = {
    // clang-format off
    {"A",       Qt::Key_A,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"B",       Qt::Key_B,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"C",       Qt::Key_C,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"D",       Qt::Key_D,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"E",       Qt::Key_E,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"F",       Qt::Key_F,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"1",       Qt::Key_1,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"2",       Qt::Key_2,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"3",       Qt::Key_3,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"4",       Qt::Key_4,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"5",       Qt::Key_5,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"6",       Qt::Key_6,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"7",       Qt::Key_7,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"8",       Qt::Key_8,         0, CWidgetStyle::HexKeyPressed,       75, 40},
    {"9",       Qt::Key_9,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"0",       Qt::Key_0,         0, CWidgetStyle::HexKeyPressed,       75, 40},

    {"Del",     Qt::Key_Delete,    0, CWidgetStyle::HexDelPressed,       40, 30},
    {"Del All", Key_DelAll,        0, CWidgetStyle::HexDelAllPressed,    77, 30},
    {"-",       Qt::Key_Minus,     0, CWidgetStyle::HexDotPressed,       40, 30},
    {"Apply",   Key_Apply,         0, CWidgetStyle::HexApplyPressed,     90, 30},
    {"",        Qt::Key_Backspace, 0, CWidgetStyle::HexBackspacePressed, 40, 30},
    // clang-format on
};

constexpr keygrid::Row rows[] = {
    // clang-format off
    {3, 10,                        false},
    {3, 10,                        false},
    {3, 10,                        false},
    {3, 10,                        false},
    {3, 10,                        false},
    {0, 10,                        false}, // Deliberate: a row without keys
    {1, 10,                        false},
    {5, keygrid::inheritedSpacing, true},
    // clang-format on
};
static_assert(keygrid::keysIn(rows, table::count(rows)) == table::count(keys),
              "the rows take all keys");

const keygrid::Plan plan = {
    keys, rows, table::count(rows), 0, 10, 0, 100, keygrid::inheritedSpacing,
};

} // namespace

/// The grid with all its keys, "Apply" selected.
CHexKeyPad::CHexKeyPad(QWidget* parent) : CAbstractKeyPad(parent), m_keys(new keygrid::Keys(this))
{
    CHexKeyPad::initialize();
}

CHexKeyPad::~CHexKeyPad()
{
    delete m_keys;
}

/// Builds the keys, once: further calls do nothing. Returns true.
bool CHexKeyPad::initialize()
{
    m_keys->build(plan);
    return true;
}

/// Makes the grid take the presses of \a key, which must live as long as the grid. Null is ignored.
void CHexKeyPad::appendKey(CKeyButton* key)
{
    m_keys->append(key);
}

/// Selects \a key and emits currentKeyChanged(), also when it is disabled. Null deselects only.
void CHexKeyPad::keyPress(CKeyButton* key)
{
    m_keys->press(key);
}

/// Hands each press of a key to keyPress(). The key gets the event as well.
bool CHexKeyPad::eventFilter(QObject* watched, QEvent* event)
{
    return m_keys->filter(watched, event);
}
