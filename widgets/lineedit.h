#ifndef CWIDGET_WIDGETS_LINEEDIT_H
#define CWIDGET_WIDGETS_LINEEDIT_H

#include "../keypad/keypadfactory.h"
#include "../style/global.h"
#include "../style/style.h"

#include <QLineEdit>

/// A field for one line of text on a touch screen. Without a keyboard attached, touching it opens a
/// keypad; textEdited() tells that the keypad has closed and the field holds its text. That is so
/// for a read-only field, too, and however the keypad was closed: it has no way to cancel.
class CWIDGET_EXPORT CLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(CKeyPadFactory::KeyPadType keypadType READ skpType WRITE setSKPType)
    Q_PROPERTY(bool keypadActive READ isSKPActive WRITE setSKPActive)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(bool rangeEnabled READ isRangeEnabled WRITE setRangeEnabled)
    Q_PROPERTY(bool borderVisible READ isBorderVisible WRITE setBorderVisible)
    Q_PROPERTY(QFont font READ font WRITE setFont)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CLineEdit(QWidget* parent = nullptr);
    ~CLineEdit() override;

    QString title() const;
    void setTitle(const QString& title);
    bool isSKPActive() const;
    void setSKPActive(bool active);
    CKeyPadFactory::KeyPadType skpType() const;
    void setSKPType(CKeyPadFactory::KeyPadType type);
    void setRange(int min, int max);
    /// Stores the texts and switches the check on; the check compares with the integer bounds.
    void setRange(const QString& min, const QString& max);
    bool isRangeEnabled() const;
    void setRangeEnabled(bool enabled);
    int minimum() const;
    void setMinimum(int min);
    int maximum() const;
    void setMaximum(int max);
    bool isBorderVisible() const;
    void setBorderVisible(bool visible);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setFont(const QFont& font);
    void setWidgetStyle(WidgetStyle style);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool opensKeyPad() const;
    QString askKeyPad();

    QString m_title;
    bool m_skpActive;
    CKeyPadFactory::KeyPadType m_skpType;
    bool m_autoStyleEnabled;
    bool m_rangeEnabled;
    int m_minimum;
    int m_maximum;
    QString m_minimumText;
    QString m_maximumText;
    bool m_borderVisible;

    Q_DISABLE_COPY(CLineEdit)
};

#endif
