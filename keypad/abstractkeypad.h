#ifndef CWIDGET_KEYPAD_ABSTRACTKEYPAD_H
#define CWIDGET_KEYPAD_ABSTRACTKEYPAD_H

#include "../widgets/widget.h"

namespace keygrid
{
class Keys;
}

/// The base of the grids of keys. A grid tells which key was pressed; what the key does to an entry
/// is for others to decide.
class CWIDGET_EXPORT CAbstractKeyPad : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CAbstractKeyPad(QWidget* parent = nullptr);
    ~CAbstractKeyPad() override;

Q_SIGNALS:
    /// A key was pressed that showed \a text. \a keyCode is one of Qt::Key or of KeyPadKey.
    void currentKeyChanged(const QString& text, int keyCode);

protected:
    void changeEvent(QEvent* event) override;

private:
    friend class keygrid::Keys; // which emits the signal

    Q_DISABLE_COPY(CAbstractKeyPad)
};

#endif
