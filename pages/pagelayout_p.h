#ifndef CWIDGET_PAGES_PAGELAYOUT_P_H
#define CWIDGET_PAGES_PAGELAYOUT_P_H

#include <QList>
#include <QVBoxLayout>

/// A column of rows of which a page is on screen. It places the rows of that page as a QVBoxLayout
/// does, and looks at none of the others, however many there are: all of those must be hidden.
class PageLayout : public QVBoxLayout
{
    Q_OBJECT

public:
    explicit PageLayout(QWidget* parent);
    ~PageLayout() override;

    void setPage(const QList<QWidget*>& rows);
    void activatePage();

    QLayoutItem* itemAt(int index) const override;
    bool hasHeightForWidth() const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void invalidate() override;
    void setGeometry(const QRect& rect) override;

private:
    QVBoxLayout m_page;
    QList<QWidget*> m_rows;
    mutable bool m_isWalked;

    Q_DISABLE_COPY(PageLayout)
};

#endif
