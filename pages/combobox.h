#ifndef CWIDGET_PAGES_COMBOBOX_H
#define CWIDGET_PAGES_COMBOBOX_H

#include "../style/global.h"
#include "../style/style.h"

#include <QComboBox>
#include <QList>
#include <QStringList>

class ComboBoxRow;
class CPageListWidget;

/// A combo box for the touch screen. Closed it is Qt's; open it is a paged list over the middle of
/// the active window. Which entries are offered can be restricted in several ways while every entry
/// keeps its index, so that a parameter whose values depend on others can keep one table of texts.
class CWIDGET_EXPORT CComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QStringList items READ items WRITE setItems)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)
    Q_PROPERTY(bool borderVisible READ isBorderVisible WRITE setBorderVisible)
    Q_PROPERTY(QFont font READ font WRITE setFont)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CComboBox(QWidget* parent = nullptr);
    ~CComboBox() override;

    QStringList items() const;
    void setItems(const QStringList& texts);
    void addItems(const QStringList& texts);

    int currentIndex() const;

    void setVisibleItems(unsigned long long mask, unsigned int current);
    void setVisibleItems(unsigned int mask, unsigned int current);
    void setVisibleItems(const QList<int>& indexes, int current);
    void setVisibleItems(const QStringList& texts, int current);
    void setVisibleItems(const QStringList& texts, const QString& current);
    void setVisibleItem(const QString& text);
    void setInvisibleItems(const QList<int>& indexes, int current);
    bool isChanged(const QList<int>& indexes, int current) const;
    bool isChanged(const QStringList& texts, int current) const;

    QString title() const;
    void setTitle(const QString& title);
    bool isBorderVisible() const;
    void setBorderVisible(bool visible);
    void setFont(const QFont& font);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setWidgetStyle(WidgetStyle style);

    void showPopup() override;
    void hidePopup() override;

public Q_SLOTS:
    void setCurrentIndex(int index);
    void changeCurrentText(const QString& text);
    void changeCurrentItem(const QString& text);
    void changeCurrentItem(int index);
    void itemActivated(const QString& text);

Q_SIGNALS:
    /// Another text is shown, or a row of the list was touched.
    void currentValueChanged(const QString& text);
    /// A row of the list was touched.
    void currentValueChanged(int index);
    /// An entry was chosen, in the list or on the closed box.
    void currentItemActivated(int index);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class ComboBoxRow;

    int rowOf(const QString& text) const;
    void showRow(int row);
    void changeRow(int row);
    void followRow(const QString& text, QStringList* waiting);
    void tellTexts(const QStringList& texts);
    void fill(const QStringList& texts, int current);
    QRect groundGeometry() const;
    void centerPopup(const QRect& ground);

    int m_currentIndex;
    QStringList m_items;
    bool m_autoStyleEnabled;
    CPageListWidget* m_pageList;
    bool m_borderVisible;
    ComboBoxRow* m_row;

    Q_DISABLE_COPY(CComboBox)
};

#endif
