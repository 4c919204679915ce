#ifndef CWIDGET_PARM_PARMLABEL_H
#define CWIDGET_PARM_PARMLABEL_H

#include "parm/parmfield.h"
#include "widgets/label.h"

/// A row of a settings screen that only tells: the name of a parameter and its value.
class CWIDGET_EXPORT CParmLabel : public CWidget
{
    Q_OBJECT

public:
    CParmLabel(const QString& name, const QString& value, QWidget* parent = 0);
    ~CParmLabel() override;

    void setName(const QString& name);
    QString text() const;

    using CWidget::setWidth;
    void setWidth(int width, Proportion proportion);
    void setHeight(int height) override;

    void setFont(const QFont& font);
    void setWrapMode(CLabel::WrapMode mode);
    using CWidget::setBackgroundColor;
    void setBackgroundColor(const QColor& color, FieldFlag flag);
    void setTextColor(const QColor& color, FieldFlag flag);
    void setBorderVisible(bool visible, FieldFlag flag);
    void setAlignment(Qt::Alignment alignment, FieldFlag flag);
    void setWidgetStyle(WidgetStyle style);

public Q_SLOTS:
    void setText(const QString& value);

private:
    template <typename Action>
    void forLabels(FieldFlag flag, Action action);

    CLabel* m_nameLabel;
    CLabel* m_valueLabel;
    WidgetStyle m_style;

    Q_DISABLE_COPY(CParmLabel)
};

#endif
