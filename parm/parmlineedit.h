#ifndef CWIDGET_PARM_PARMLINEEDIT_H
#define CWIDGET_PARM_PARMLINEEDIT_H

#include "keypad/keypadfactory.h"
#include "parm/parmfield.h"
#include "widgets/widget.h"

class CLabel;
class CLineEdit;

/// A row of a settings screen for a text or a number: the name of the parameter and a line edit,
/// whose keypad has the name as title.
class CWIDGET_EXPORT CParmLineEdit : public CWidget
{
    Q_OBJECT

public:
    CParmLineEdit(const QString& name, const QString& value, QWidget* parent = 0);
    ~CParmLineEdit() override;

    void setName(const QString& name);
    QString text() const;

    using CWidget::setWidth;
    void setWidth(int width, Proportion proportion);

    using CWidget::setBackgroundColor;
    void setBackgroundColor(const QColor& color, FieldFlag flag);
    void setTextColor(const QColor& color, FieldFlag flag);
    void setWidgetStyle(WidgetStyle style);

    void setRange(int min, int max);
    void setSKPType(CKeyPadFactory::KeyPadType type);
    bool isSKPActive() const;
    void setSKPActive(bool active);
    void setReadOnly(bool readOnly);
    void setEnable(bool enabled);

public Q_SLOTS:
    void setText(const QString& value);

Q_SIGNALS:
    /// The text changed, in whatever way.
    void textChanged(const QString& text);
    /// The user changed the text or closed the keypad.
    void textEdited(const QString& text);
    /// The user finished with a keyboard: the Return key was pressed or the focus left.
    void editingFinished();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    CLabel* m_nameLabel;
    CLineEdit* m_lineEdit;
    WidgetStyle m_style;
    Proportion m_proportion;

    Q_DISABLE_COPY(CParmLineEdit)
};

#endif
