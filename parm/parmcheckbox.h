#ifndef CWIDGET_PARM_PARMCHECKBOX_H
#define CWIDGET_PARM_PARMCHECKBOX_H

#include "../widgets/widget.h"
#include "parmfield.h"

class CCheckBox;
class CLabel;

/// A row of a settings screen for on or off: the name of the parameter and a check box with a
/// caption of its own.
class CWIDGET_EXPORT CParmCheckBox : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)
    Q_PROPERTY(int fieldWidth READ width WRITE setWidth)
    Q_PROPERTY(bool borderVisible READ isBorderVisible WRITE setBorderVisible)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CParmCheckBox(QWidget* parent = nullptr);
    CParmCheckBox(const QString& name, const QString& text, QWidget* parent = nullptr);
    ~CParmCheckBox() override;

    QString name() const;
    void setName(const QString& name);
    QString text() const;
    void setText(const QString& text);
    bool isChecked() const;
    void setChecked(bool checked);
    Qt::CheckState checkState() const;
    void setCheckState(Qt::CheckState state);
    bool isBorderVisible() const;
    void setBorderVisible(bool visible);
    void setWidgetStyle(WidgetStyle style);

Q_SIGNALS:
    /// The check box changed to \a state, a Qt::CheckState, by a touch or by setCheckState().
    void stateChanged(int state);

private:
    CLabel* m_nameLabel;
    CCheckBox* m_checkBox;
    WidgetStyle m_style;

    Q_DISABLE_COPY(CParmCheckBox)
};

#endif
