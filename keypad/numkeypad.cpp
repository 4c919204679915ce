#include "keypad/numkeypad.h"

#include "keypad/keybutton.h"
#include "keypad/keygrid_p.h"
#include "style/table_p.h"

namespace
{

const char signText[] = "+/-";

const keygrid::Key keys[] = {
    // clang-format off
    {"1",       Qt::Key_1,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"2",       Qt::Key_2,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"3",       Qt::Key_3,         0, CWidgetStyle::NumKeyPressed,       75, 40},

    {"4",       Qt::Key_4,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"5",       Qt::Key_5,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"6",       Qt::Key_6,         0, CWidgetStyle::NumKeyPressed,       75, 40},

    {"7",       Qt::Key_7,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"8",       Qt::Key_8,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"9",       Qt::Key_9,         0, CWidgetStyle::NumKeyPressed,       75, 40},

    {signText,  Key_PlusMinus,     0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"0",       Qt::Key_0,         0, CWidgetStyle::NumKeyPressed,       75, 40},
    {"",        Qt::Key_unknown,   0, CWidgetStyle::NumKeyPressed,       75, 40}, // blank

    {"Del",     Qt::Key_Delete,    0, CWidgetStyle::NumDelPressed,       40, 30},
    {"Del All", Key_DelAll,        0, CWidgetStyle::NumDelAllPressed,    77, 30},
    {".",       Key_Point,         0, CWidgetStyle::NumDotPressed,       40, 30},
    {"Apply",   Key_Apply,         0, CWidgetStyle::NumApplyPressed,     90, 30},
    {"",        Qt::Key_Backspace, 0, CWidgetStyle::NumBackspacePressed, 40, 30},
    // clang-format on
};

constexpr keygrid::Row rows[] = {
    // clang-format off
    {3, 20,                        false},
    {3, 20,                        false},
    {3, 20,                        false},
    {0, 20,                        false}, // Deliberate: a row without keys
    {3, 20,                        false},
    {5, keygrid::inheritedSpacing, false},
    // clang-format on
};
static_assert(keygrid::keysIn(rows, table::count(rows)) == table::count(keys),
              "the rows take all keys");

const keygrid::Plan plan = {
    keys, rows, table::count(rows), 0, 20, 0, 100, keygrid::inheritedSpacing,
};

/// A disabled key does nothing.
class NumKeys : public keygrid::Keys
{
public:
    using keygrid::Keys::Keys;

protected:
    bool accepts(const CKeyButton* key) const override
    {
        return key->isEnabled();
    }
};

} // namespace

/// The grid with all its keys, "Apply" selected, put into \a mode.
CNumKeyPad::CNumKeyPad(Mode mode, QWidget* parent)
    : CAbstractKeyPad(parent), m_mode(SignedMode), m_signKey(nullptr), m_keys(new NumKeys(this))
{
    CNumKeyPad::initialize();
    setMode(mode);
}

/// The same in SignedMode.
CNumKeyPad::CNumKeyPad(QWidget* parent) : CNumKeyPad(SignedMode, parent)
{
}

CNumKeyPad::~CNumKeyPad()
{
    delete m_keys;
}

/// Builds the keys, once: further calls do nothing. Returns true.
bool CNumKeyPad::initialize()
{
    m_keys->build(plan);
    m_signKey = m_keys->withCode(Key_PlusMinus);
    return true;
}

/// Disables the keys that \a mode has no use for. SignedMode and unknown modes bring back what the
/// stored mode disabled. Deliberate: that mode never changes after construction, so nothing comes
/// back; for another mode, make another grid.
void CNumKeyPad::setMode(Mode mode)
{
    if (mode == BinaryMode)
        setUpperDigitsEnabled(false);
    else if (mode == UnsignedMode)
        blankSignKey();
    else if (m_mode == BinaryMode)
        setUpperDigitsEnabled(true);
    else if (m_mode == UnsignedMode)
        restoreSignKey();
}

/// Makes the grid take the presses of \a key, which must live as long as the grid. Null is ignored.
void CNumKeyPad::appendKey(CKeyButton* key)
{
    m_keys->append(key);
}

/// Selects \a key and emits currentKeyChanged(), unless it is disabled. Null deselects only.
void CNumKeyPad::keyPress(CKeyButton* key)
{
    m_keys->press(key);
}

/// Hands each press of a key to keyPress(). The key gets the event as well.
bool CNumKeyPad::eventFilter(QObject* watched, QEvent* event)
{
    return m_keys->filter(watched, event);
}

/// The digits that a binary number does not have.
void CNumKeyPad::setUpperDigitsEnabled(bool enabled)
{
    const QList<CKeyButton*>& all = m_keys->all();
    for (int i = 0; i < all.size(); ++i) {
        CKeyButton* key = all.at(i);
        if (key->key() < Qt::Key_2 || key->key() > Qt::Key_9)
            continue;
        key->setTextColor(enabled ? Qt::white : Qt::gray);
        key->setEnabled(enabled);
    }
}

/// Leaves a black place where the sign key was.
void CNumKeyPad::blankSignKey()
{
    m_signKey->setText(QString());
    m_signKey->setBackgroundColor(Qt::black);
    m_signKey->setBackground(QPixmap());
    m_signKey->setEnabled(false);
}

void CNumKeyPad::restoreSignKey()
{
    m_signKey->setText(QLatin1String(signText));
    keygrid::setLook(m_signKey, CWidgetStyle::NumKeyPressed);
    m_signKey->setEnabled(true);
}
