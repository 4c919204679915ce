#ifndef CWIDGET_KEYPAD_GENKEYPAD_H
#define CWIDGET_KEYPAD_GENKEYPAD_H

#include "abstractkeypad.h"

class CKeyButton;

/// The grid for texts: digits, letters in lower and upper case, symbols, and keys to edit and
/// accept. "Caps" and "Symbol" stay on until they are pressed again, "Shift" acts on the next key.
class CWIDGET_EXPORT CGenKeyPad : public CAbstractKeyPad
{
    Q_OBJECT

public:
    explicit CGenKeyPad(QWidget* parent = nullptr);
    ~CGenKeyPad() override;

    bool initialize() override;

    void appendKey(CKeyButton* key);
    void keyPress(CKeyButton* key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    keygrid::Keys* m_keys;

    Q_DISABLE_COPY(CGenKeyPad)
};

#endif
