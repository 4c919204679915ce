#ifndef CWIDGET_PAGES_PAGELISTWIDGET_H
#define CWIDGET_PAGES_PAGELISTWIDGET_H

#include "../widgets/widget.h"

#include <QList>
#include <QStringList>

class CPageBar;
class CPageListWidgetHeader;
class CPageListWidgetItemArea;

/// A list for the touch screen: a popup with a header, five rows, and a page bar instead of a
/// scroll bar. Entries are known by their index in the list of texts; a selection of them can take
/// part in paging without a change of their indexes.
class CWIDGET_EXPORT CPageListWidget : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QStringList items READ items WRITE setItems)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageListWidget(QWidget* parent = nullptr);
    ~CPageListWidget() override;

    QStringList items() const;
    void setItems(const QStringList& texts);
    void addItems(const QStringList& texts);
    /// Appends a text, and then rows for the whole table once more: to fill a list, use addItems().
    void addItem(const QString& text);
    void clear();

    void setVisibleItems(const QList<int>& indexes);
    QList<int> visibleItemsIndex() const;
    QStringList visibleItems() const;
    QStringList getCurrentItems() const;

    using QWidget::show;
    void show(int index);
    void show(const QString& text);

    int currentIndex() const;
    QString title() const;
    void setTitle(const QString& title);
    QString text() const;
    void setText(const QString& text);

    using CWidget::setSize;
    void setSize(int width, int height) override;
    void adjustHeight();
    void adjustPageCount();

public Q_SLOTS:
    void setCurrentIndex(int index);

Q_SIGNALS:
    /// A row was touched and let go; its text, and then its index in the list of texts.
    void currentItemChanged(const QString& text);
    /// A row was touched and let go: its index in the list of texts. The text came before.
    void currentItemChanged(int index);

private:
    void buildLayout();
    bool needsPageBar() const;
    int pageOf(int index) const;

    int m_width;
    int m_height;
    int m_maxVisibleRows;
    QString m_title;
    QString m_text;
    QStringList m_items;
    QList<int> m_visibleIndex;
    CPageListWidgetHeader* m_header;
    CPageListWidgetItemArea* m_itemArea;
    CPageBar* m_pageBar;

    Q_DISABLE_COPY(CPageListWidget)
};

#endif
