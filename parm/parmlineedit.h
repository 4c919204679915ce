#ifndef CWIDGET_PARM_PARMLINEEDIT_H
#define CWIDGET_PARM_PARMLINEEDIT_H

#include "../keypad/keypadfactory.h"
#include "../widgets/widget.h"
#include "parmfield.h"

class CLabel;
class CLineEdit;

/// A row of a settings screen for a text or a number: the name of the parameter and a line edit,
/// whose keypad has the name as title.
class CWIDGET_EXPORT CParmLineEdit : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(CParmField::Proportion proportion READ proportion WRITE applyProportion)
    Q_PROPERTY(int fieldWidth READ width WRITE applyWidth)
    Q_PROPERTY(CKeyPadFactory::KeyPadType keypadType READ skpType WRITE setSKPType)
    Q_PROPERTY(bool keypadActive READ isSKPActive WRITE setSKPActive)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(bool rangeEnabled READ isRangeEnabled WRITE setRangeEnabled)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool valueEnabled READ isValueEnabled WRITE setEnable)
    Q_PROPERTY(QColor nameTextColor READ nameTextColor WRITE applyNameTextColor)
    Q_PROPERTY(QColor nameBackgroundColor READ nameBackgroundColor WRITE applyNameBackgroundColor)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CParmLineEdit(QWidget* parent = nullptr);
    CParmLineEdit(const QString& name, const QString& value, QWidget* parent = nullptr);
    ~CParmLineEdit() override;

    QString name() const;
    void setName(const QString& name);
    QString text() const;

    using CWidget::setWidth;
    void setWidth(int width, Proportion proportion);

    using CWidget::setBackgroundColor;
    void setBackgroundColor(const QColor& color, FieldFlag flag);
    void setTextColor(const QColor& color, FieldFlag flag);
    void setWidgetStyle(WidgetStyle style);

    void setRange(int min, int max);
    bool isRangeEnabled() const;
    void setRangeEnabled(bool enabled);
    int minimum() const;
    void setMinimum(int min);
    int maximum() const;
    void setMaximum(int max);
    CKeyPadFactory::KeyPadType skpType() const;
    void setSKPType(CKeyPadFactory::KeyPadType type);
    bool isSKPActive() const;
    void setSKPActive(bool active);
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);
    bool isValueEnabled() const;
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
    // The properties of which the setters above address one by a flag.
    CParmField::Proportion proportion() const;
    void applyProportion(CParmField::Proportion proportion);
    void applyWidth(int width);
    QColor nameTextColor() const;
    void applyNameTextColor(const QColor& color);
    QColor nameBackgroundColor() const;
    void applyNameBackgroundColor(const QColor& color);

    CLabel* m_nameLabel;
    CLineEdit* m_lineEdit;
    WidgetStyle m_style;
    Proportion m_proportion;

    Q_DISABLE_COPY(CParmLineEdit)
};

#endif
