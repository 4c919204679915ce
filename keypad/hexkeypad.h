#ifndef CWIDGET_KEYPAD_HEXKEYPAD_H
#define CWIDGET_KEYPAD_HEXKEYPAD_H

#include "abstractkeypad.h"

class CKeyButton;

/// The grid for hexadecimal numbers: A to F, the digits, and keys to edit and accept.
class CWIDGET_EXPORT CHexKeyPad : public CAbstractKeyPad
{
    Q_OBJECT

public:
    explicit CHexKeyPad(QWidget* parent = nullptr);
    ~CHexKeyPad() override;

    bool initialize() override;

    void appendKey(CKeyButton* key);
    void keyPress(CKeyButton* key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    keygrid::Keys* m_keys;

    Q_DISABLE_COPY(CHexKeyPad)
};

#endif
