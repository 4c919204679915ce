#ifndef CWIDGET_KEYPAD_NUMKEYPAD_H
#define CWIDGET_KEYPAD_NUMKEYPAD_H

#include "abstractkeypad.h"

class CKeyButton;

/// The grid for decimal and binary numbers: the digits, a sign, a point, and keys to edit and
/// accept. Keys that the kind of number has no use for are disabled.
class CWIDGET_EXPORT CNumKeyPad : public CAbstractKeyPad
{
    Q_OBJECT

public:
    /// Which numbers the grid is for.
    enum Mode : int {
        BinaryMode = 0,   ///< without the digits 2 to 9
        UnsignedMode = 1, ///< without the sign
        SignedMode = 2
    };

    explicit CNumKeyPad(QWidget* parent);
    explicit CNumKeyPad(Mode mode, QWidget* parent = nullptr);
    ~CNumKeyPad() override;

    bool initialize() override;

    void setMode(Mode mode);
    void appendKey(CKeyButton* key);
    void keyPress(CKeyButton* key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpperDigitsEnabled(bool enabled);
    void blankSignKey();
    void restoreSignKey();

    Mode m_mode;
    CKeyButton* m_signKey;
    keygrid::Keys* m_keys;

    Q_DISABLE_COPY(CNumKeyPad)
};

#endif
