#include "keypad/genkeypad.h"

#include "keypad/keybutton.h"
#include "keypad/keygrid_p.h"
#include "style/table_p.h"

namespace
{

const keygrid::Key keys[] = {
    // clang-format off
    {"1",       Qt::Key_1,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"2",       Qt::Key_2,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"3",       Qt::Key_3,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"4",       Qt::Key_4,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"5",       Qt::Key_5,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"6",       Qt::Key_6,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"7",       Qt::Key_7,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"8",       Qt::Key_8,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"9",       Qt::Key_9,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"0",       Qt::Key_0,           0, CWidgetStyle::GenKeyPressed,     45, 45},

    {"q",       Qt::Key_Q,         '!', CWidgetStyle::GenKeyPressed,     45, 45},
    {"w",       Qt::Key_W,         '#', CWidgetStyle::GenKeyPressed,     45, 45},
    {"e",       Qt::Key_E,         '$', CWidgetStyle::GenKeyPressed,     45, 45},
    {"r",       Qt::Key_R,         '%', CWidgetStyle::GenKeyPressed,     45, 45},
    {"t",       Qt::Key_T,         '^', CWidgetStyle::GenKeyPressed,     45, 45},
    {"y",       Qt::Key_Y,         '&', CWidgetStyle::GenKeyPressed,     45, 45},
    {"u",       Qt::Key_U,         '*', CWidgetStyle::GenKeyPressed,     45, 45},
    {"i",       Qt::Key_I,         '(', CWidgetStyle::GenKeyPressed,     45, 45},
    {"o",       Qt::Key_O,         ')', CWidgetStyle::GenKeyPressed,     45, 45},
    {"p",       Qt::Key_P,         '_', CWidgetStyle::GenKeyPressed,     45, 45},

    {"a",       Qt::Key_A,         '+', CWidgetStyle::GenKeyPressed,     45, 45},
    {"s",       Qt::Key_S,         '=', CWidgetStyle::GenKeyPressed,     45, 45},
    {"d",       Qt::Key_D,         ':', CWidgetStyle::GenKeyPressed,     45, 45},
    {"f",       Qt::Key_F,         ';', CWidgetStyle::GenKeyPressed,     45, 45},
    {"g",       Qt::Key_G,         '"', CWidgetStyle::GenKeyPressed,     45, 45},
    {"h",       Qt::Key_H,        '\'', CWidgetStyle::GenKeyPressed,     45, 45},
    {"j",       Qt::Key_J,         ',', CWidgetStyle::GenKeyPressed,     45, 45},
    {"k",       Qt::Key_K,         '~', CWidgetStyle::GenKeyPressed,     45, 45},
    {"l",       Qt::Key_L,         '-', CWidgetStyle::GenKeyPressed,     45, 45},

    {"Shift",   Qt::Key_Shift,       0, CWidgetStyle::GenShiftPressed,   55, 45},
    {"z",       Qt::Key_Z,         '<', CWidgetStyle::GenKeyPressed,     45, 45},
    {"x",       Qt::Key_X,         '>', CWidgetStyle::GenKeyPressed,     45, 45},
    {"c",       Qt::Key_C,         '?', CWidgetStyle::GenKeyPressed,     45, 45},
    {"v",       Qt::Key_V,        '\\', CWidgetStyle::GenKeyPressed,     45, 45},
    {"b",       Qt::Key_B,         '/', CWidgetStyle::GenKeyPressed,     45, 45},
    {"n",       Qt::Key_N,         '|', CWidgetStyle::GenKeyPressed,     45, 45},
    {"m",       Qt::Key_M,         '`', CWidgetStyle::GenKeyPressed,     45, 45},
    {"Caps",    Qt::Key_CapsLock,    0, CWidgetStyle::GenCapsPressed,    55, 45},

    {"Symbol",  Key_Symbol,          0, CWidgetStyle::GenSymbolPressed,  66, 45},
    {"Del",     Qt::Key_Delete,      0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"@",       Qt::Key_At,          0, CWidgetStyle::GenKeyPressed,     45, 45},
    {".",       Key_Point,           0, CWidgetStyle::GenKeyPressed,     45, 45},
    {"Del All", Key_DelAll,          0, CWidgetStyle::GenDelAllPressed,  75, 45},
    {"",        Qt::Key_Backspace,   0, CWidgetStyle::GenKeyPressed,     45, 45},

    {"SPACE",   Qt::Key_Space,       0, CWidgetStyle::GenSpacePressed,  365, 45},
    {"Apply",   Key_Apply,           0, CWidgetStyle::GenApplyPressed,   95, 45},
    // clang-format on
};

constexpr keygrid::Row rows[] = {
    // clang-format off
    {10, keygrid::inheritedSpacing, false},
    {10, keygrid::inheritedSpacing, false},
    { 9, keygrid::inheritedSpacing, true},
    { 9, keygrid::inheritedSpacing, true},
    { 6, keygrid::inheritedSpacing, true},
    { 2, keygrid::inheritedSpacing, true},
    // clang-format on
};
static_assert(keygrid::keysIn(rows, table::count(rows)) == table::count(keys),
              "the rows take all keys");

const keygrid::Plan plan = {keys, rows, table::count(rows), 1, 5, 3, 0, 4};

bool isLetter(const CKeyButton* key)
{
    return key->key() >= Qt::Key_A && key->key() <= Qt::Key_Z;
}

QString cased(const QString& text, bool upper)
{
    return upper ? text.toUpper() : text.toLower();
}

/// Letters change their case and give way to symbols.
class GenKeys : public keygrid::Keys
{
public:
    explicit GenKeys(CAbstractKeyPad* grid);

protected:
    QString act(CKeyButton* key) override;

private:
    void toggleCaps();
    void toggleSymbolLayer();

    int m_lastKeyCode;
    bool m_caps;
    bool m_symbolLayer;
};

GenKeys::GenKeys(CAbstractKeyPad* grid)
    : keygrid::Keys(grid), m_lastKeyCode(Qt::Key_Space), m_caps(false), m_symbolLayer(false)
{
}

/// Lets \a key switch the case or the symbols. After "Shift" its text is reported in the other
/// case.
QString GenKeys::act(CKeyButton* key)
{
    if (key->key() == Qt::Key_CapsLock && !m_symbolLayer) // Deliberate: no effect among symbols
        toggleCaps();
    if (key->key() == Key_Symbol)
        toggleSymbolLayer();
    const bool shifted = m_lastKeyCode == Qt::Key_Shift;
    m_lastKeyCode = key->key();
    return shifted ? cased(key->getText(), !m_caps) : key->getText();
}

void GenKeys::toggleCaps()
{
    m_caps = !m_caps;
    for (int i = 0; i < all().size(); ++i) {
        CKeyButton* key = all().at(i);
        if (isLetter(key))
            key->setText(cased(key->getText(), m_caps));
    }
}

void GenKeys::toggleSymbolLayer()
{
    m_symbolLayer = !m_symbolLayer;
    for (int i = 0; i < all().size(); ++i) {
        CKeyButton* key = all().at(i);
        if (!isLetter(key))
            continue;
        key->showSymbol(m_symbolLayer);
        key->setText(cased(key->getText(), m_caps));
    }
}

} // namespace

/// The grid with all its keys in lower case, "Apply" selected.
CGenKeyPad::CGenKeyPad(QWidget* parent) : CAbstractKeyPad(parent), m_keys(new GenKeys(this))
{
    CGenKeyPad::initialize();
}

CGenKeyPad::~CGenKeyPad()
{
    delete m_keys;
}

/// Builds the keys, once: further calls do nothing. Returns true.
bool CGenKeyPad::initialize()
{
    m_keys->build(plan);
    return true;
}

/// Makes the grid take the presses of \a key, which must live as long as the grid. Null is ignored.
void CGenKeyPad::appendKey(CKeyButton* key)
{
    m_keys->append(key);
}

/// Selects \a key, lets it switch the case or the symbols, and emits currentKeyChanged(). Null
/// deselects only.
void CGenKeyPad::keyPress(CKeyButton* key)
{
    m_keys->press(key);
}

/// Hands each press of a key to keyPress(). The key gets the event as well.
bool CGenKeyPad::eventFilter(QObject* watched, QEvent* event)
{
    return m_keys->filter(watched, event);
}
