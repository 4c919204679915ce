#ifndef CWIDGET_KEYPAD_SOFTKEYPAD_H
#define CWIDGET_KEYPAD_SOFTKEYPAD_H

#include "keycodes.h"
#include "keypadfactory.h"

#include <QDialog>

class CAbstractKeyPad;
class CKeyPadEdit;
class QHBoxLayout;

/// The dialog of a keypad: an entry field over the grid of keys of its type. A range, if set, is
/// what "Apply" checks a number against: one outside is corrected, and the dialog stays open.
/// Applications usually open it through CKeyPadFactory.
class CWIDGET_EXPORT CSoftKeyPad : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(CKeyPadFactory::KeyPadType keypadType READ skpType WRITE setSKPType)

public:
    explicit CSoftKeyPad(QWidget* parent = nullptr);
    explicit CSoftKeyPad(CKeyPadFactory::KeyPadType type, QWidget* parent = nullptr);
    ~CSoftKeyPad() override;

    bool initialize();

    void setSize(int width, int height);
    CKeyPadFactory::KeyPadType skpType() const;
    void setSKPType(CKeyPadFactory::KeyPadType type);
    void setRange(int min, int max);
    /// Stores the texts and switches the check on; the check compares with the integer bounds.
    void setRange(const QString& min, const QString& max);
    void setText(const QString& title, const QString& text);

    QString getInput() const;
    void clearInput();
    bool validate() const;

public Q_SLOTS:
    void changedkey(const QString& text, int keyCode);
    void changeText();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addGrid();
    void keepKeysInside();
    void insertKey(const QString& text, int keyCode);
    void toggleSign();

    CKeyPadEdit* m_edit;
    QHBoxLayout* m_gridRow;
    CAbstractKeyPad* m_grid;
    CKeyPadFactory::KeyPadType m_type;
    QString m_lastGoodText;
    bool m_rangeSet;
    int m_minimum;
    int m_maximum;
    QString m_minimumText;
    QString m_maximumText;

    Q_DISABLE_COPY(CSoftKeyPad)
};

#endif
