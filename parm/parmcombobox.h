#ifndef CWIDGET_PARM_PARMCOMBOBOX_H
#define CWIDGET_PARM_PARMCOMBOBOX_H

#include "parm/parmfield.h"
#include "widgets/widget.h"

#include <QList>
#include <QStringList>

class CComboBox;
class CLabel;

/// A row of a settings screen for a choice: the name of the parameter and a combo box, whose list
/// has the name as title. Which entries are offered can be restricted while each keeps its index.
class CWIDGET_EXPORT CParmComboBox : public CWidget
{
    Q_OBJECT

public:
    CParmComboBox(const QString& name, const QStringList& items, const QString& current,
                  QWidget* parent = 0);
    ~CParmComboBox() override;

    void setName(const QString& name);
    void addItems(const QStringList& items);
    int currentIndex() const;
    QString currentText() const;

    void setVisibleItems(unsigned long long mask, unsigned int current);
    void setVisibleItems(unsigned int mask, unsigned int current);
    void setVisibleItems(const QList<int>& indexes, int current);
    void setVisibleItems(const QStringList& texts, int current);
    void setVisibleItems(const QStringList& texts, const QString& current);
    void setVisibleItem(const QString& text);
    void setInvisibleItems(const QList<int>& indexes, int current);

    void setWidth(int width) override;
    using CWidget::setBackgroundColor;
    void setBackgroundColor(const QColor& color, FieldFlag flag);
    void setTextColor(const QColor& color, FieldFlag flag);
    void setBorderVisible(bool visible, FieldFlag flag);
    void setWidgetStyle(WidgetStyle style);

public Q_SLOTS:
    void setCurrentIndex(int index);

Q_SIGNALS:
    /// An entry was touched in the list.
    void currentIndexChanged(int index);
    /// An entry was chosen, in the list or on the closed box.
    void activated(int index);

private:
    template <typename Mask>
    void offerMasked(Mask mask, unsigned int current);

    QString m_initialText;
    CLabel* m_nameLabel;
    CComboBox* m_comboBox;
    WidgetStyle m_style;

    Q_DISABLE_COPY(CParmComboBox)
};

#endif
