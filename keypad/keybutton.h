#ifndef CWIDGET_KEYPAD_KEYBUTTON_H
#define CWIDGET_KEYPAD_KEYBUTTON_H

#include "../widgets/pushbutton.h"
#include "keycodes.h"

/// A key of a keypad: a push button with a code, a text, and a symbol that it may show instead.
/// Once touched it looks selected until its keypad selects another one. The backspace key draws an
/// arrow.
class CWIDGET_EXPORT CKeyButton : public CPushButton
{
    Q_OBJECT
    Q_PROPERTY(int key READ key WRITE setKey)
    Q_PROPERTY(QString keyText READ getKeyText WRITE setKeyText)
    Q_PROPERTY(QString symbol READ getSymbol WRITE setSymbol)

public:
    explicit CKeyButton(QWidget* parent = nullptr);
    ~CKeyButton() override;

    int key() const;
    void setKey(int code);
    QString getKeyText() const;
    void setKeyText(const QString& text);
    QString getSymbol() const;
    void setSymbol(const QString& symbol);
    void showSymbol(bool on);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawBackspaceArrow();

    int m_key;
    QString m_keyText;
    QString m_symbol;

    Q_DISABLE_COPY(CKeyButton)
};

#endif
