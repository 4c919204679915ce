#ifndef CWIDGET_PARM_PARMCOMBOBOX_H
#define CWIDGET_PARM_PARMCOMBOBOX_H

#include "../widgets/widget.h"
#include "parmfield.h"

#include <QList>
#include <QStringList>

class CComboBox;
class CLabel;

/// A row of a settings screen for a choice: the name of the parameter and a combo box, whose list
/// has the name as title. Which entries are offered can be restricted while each keeps its index.
class CWIDGET_EXPORT CParmComboBox : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(QStringList items READ items WRITE setItems)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE applyCurrentIndex)
    Q_PROPERTY(int fieldWidth READ width WRITE setWidth)
    Q_PROPERTY(QColor nameTextColor READ nameTextColor WRITE applyNameTextColor)
    Q_PROPERTY(QColor nameBackgroundColor READ nameBackgroundColor WRITE applyNameBackgroundColor)
    Q_PROPERTY(bool nameBorderVisible READ nameBorderVisible WRITE applyNameBorderVisible)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CParmComboBox(QWidget* parent = nullptr);
    CParmComboBox(const QString& name, const QStringList& items, const QString& current,
                  QWidget* parent = nullptr);
    ~CParmComboBox() override;

    QString name() const;
    void setName(const QString& name);
    QStringList items() const;
    void setItems(const QStringList& items);
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

    void applyCurrentIndex(int index);

    // The properties of which the setters above address one by a flag.
    QColor nameTextColor() const;
    void applyNameTextColor(const QColor& color);
    QColor nameBackgroundColor() const;
    void applyNameBackgroundColor(const QColor& color);
    bool nameBorderVisible() const;
    void applyNameBorderVisible(bool visible);

    QString m_initialText;
    CLabel* m_nameLabel;
    CComboBox* m_comboBox;
    WidgetStyle m_style;

    Q_DISABLE_COPY(CParmComboBox)
};

#endif
