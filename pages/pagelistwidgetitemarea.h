#ifndef CWIDGET_PAGES_PAGELISTWIDGETITEMAREA_H
#define CWIDGET_PAGES_PAGELISTWIDGETITEMAREA_H

#include "../widgets/widget.h"

#include <QList>
#include <QStringList>

class CPageListWidgetItem;
class PageLayout;

/// The rows of a paged list. It shows one page of those that take part in paging, marks the current
/// entry and the row under the finger, and tells which row was touched.
class CWIDGET_EXPORT CPageListWidgetItemArea : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(int maxVisibleRows READ maxVisibleRows WRITE setMaxVisibleRows)
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageListWidgetItemArea(QWidget* parent = nullptr);
    ~CPageListWidgetItemArea() override;

    void addItems(const QStringList& texts);
    void clear();
    void setVisibleItems(const QList<int>& indexes);

    int currentIndex() const;
    void setCurrentIndex(int index);
    int currentPage() const;
    QString currentText() const;
    int maxVisibleRows() const;
    void setMaxVisibleRows(int rows);
    void updateStatus();

    using CWidget::setSize;
    void setSize(int width, int height) override;

public Q_SLOTS:
    void setCurrentPage(int page);

Q_SIGNALS:
    /// A row was touched and let go; its text, and then its index in the owner's list of texts.
    void currentItemChanged(const QString& text);
    /// A row was touched and let go: its index. The text came before.
    void currentItemChanged(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void addItem(const QString& text);
    bool hasCurrentPage() const;
    template <typename Visitor>
    void visitRows(int first, int end, Visitor visit) const;
    void showRows(int first, int end);
    bool showRow(CPageListWidgetItem* item, bool isOnPage);
    void repaintRows(const QList<QWidget*>& rows, bool isAreaEnough);
    bool hasRowsOnly() const;
    void pauseLayout();
    void resumeLayout();
    QSize rowSize() const;
    CPageListWidgetItem* itemAt(const QPoint& point) const;
    void choose(CPageListWidgetItem* item);

    int m_currentPage;
    int m_currentIndex;
    int m_maxVisibleRows;
    QString m_currentText;
    PageLayout* m_layout;
    CPageListWidgetItem* m_pressedItem;
    CPageListWidgetItem* m_releasedItem;
    CPageListWidgetItem* m_hoveredItem;
    QList<CPageListWidgetItem*> m_items;
    QList<CPageListWidgetItem*> m_visibleItems;
    int m_firstShown;
    int m_endShown;

    Q_DISABLE_COPY(CPageListWidgetItemArea)
};

#endif
