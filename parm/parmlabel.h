#ifndef CWIDGET_PARM_PARMLABEL_H
#define CWIDGET_PARM_PARMLABEL_H

#include "../widgets/label.h"
#include "parmfield.h"

/// A row of a settings screen that only tells: the name of a parameter and its value.
class CWIDGET_EXPORT CParmLabel : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(CParmField::Proportion proportion READ proportion WRITE applyProportion)
    Q_PROPERTY(int fieldWidth READ width WRITE applyWidth)
    Q_PROPERTY(QFont font READ nameFont WRITE setFont)
    Q_PROPERTY(QColor nameTextColor READ nameTextColor WRITE applyNameTextColor)
    Q_PROPERTY(QColor nameBackgroundColor READ nameBackgroundColor WRITE applyNameBackgroundColor)
    Q_PROPERTY(Qt::Alignment nameAlignment READ nameAlignment WRITE applyNameAlignment)
    Q_PROPERTY(bool nameBorderVisible READ nameBorderVisible WRITE applyNameBorderVisible)
    Q_PROPERTY(QColor valueTextColor READ valueTextColor WRITE applyValueTextColor)
    Q_PROPERTY(
        QColor valueBackgroundColor READ valueBackgroundColor WRITE applyValueBackgroundColor)
    Q_PROPERTY(Qt::Alignment valueAlignment READ valueAlignment WRITE applyValueAlignment)
    Q_PROPERTY(bool valueBorderVisible READ valueBorderVisible WRITE applyValueBorderVisible)
    Q_PROPERTY(CLabel::WrapMode wrapMode READ wrapMode WRITE setWrapMode)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CParmLabel(QWidget* parent = nullptr);
    CParmLabel(const QString& name, const QString& value, QWidget* parent = nullptr);
    ~CParmLabel() override;

    QString name() const;
    void setName(const QString& name);
    QString text() const;

    using CWidget::setWidth;
    void setWidth(int width, Proportion proportion);
    void setHeight(int height) override;

    void setFont(const QFont& font);
    CLabel::WrapMode wrapMode() const;
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

    // The properties of which the setters above address one by a flag.
    CParmField::Proportion proportion() const;
    void applyProportion(CParmField::Proportion proportion);
    void applyWidth(int width);
    QFont nameFont() const;
    QColor nameTextColor() const;
    void applyNameTextColor(const QColor& color);
    QColor nameBackgroundColor() const;
    void applyNameBackgroundColor(const QColor& color);
    Qt::Alignment nameAlignment() const;
    void applyNameAlignment(Qt::Alignment alignment);
    bool nameBorderVisible() const;
    void applyNameBorderVisible(bool visible);
    QColor valueTextColor() const;
    void applyValueTextColor(const QColor& color);
    QColor valueBackgroundColor() const;
    void applyValueBackgroundColor(const QColor& color);
    Qt::Alignment valueAlignment() const;
    void applyValueAlignment(Qt::Alignment alignment);
    bool valueBorderVisible() const;
    void applyValueBorderVisible(bool visible);

    CLabel* m_nameLabel;
    CLabel* m_valueLabel;
    WidgetStyle m_style;

    Q_DISABLE_COPY(CParmLabel)
};

#endif
