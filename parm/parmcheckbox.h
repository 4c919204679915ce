#ifndef CWIDGET_PARM_PARMCHECKBOX_H
#define CWIDGET_PARM_PARMCHECKBOX_H

#include "parm/parmfield.h"
#include "widgets/widget.h"

class CCheckBox;
class CLabel;

/// A row of a settings screen for on or off: the name of the parameter and a check box with a
/// caption of its own.
class CWIDGET_EXPORT CParmCheckBox : public CWidget
{
    Q_OBJECT

public:
    CParmCheckBox(const QString& name, const QString& text, QWidget* parent = 0);
    ~CParmCheckBox() override;

    void setName(const QString& name);
    Qt::CheckState checkState() const;
    void setCheckState(Qt::CheckState state);
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
