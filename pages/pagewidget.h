#ifndef CWIDGET_PAGES_PAGEWIDGET_H
#define CWIDGET_PAGES_PAGEWIDGET_H

#include "../widgets/widget.h"

#include <QList>
#include <QPointer>

class CPageBar;
class QStackedWidget;

/// Pages of any kind, one shown at a time, with a page bar under them. Every page carries a number
/// of its own, the property "PageIndex", by which it can be hidden and shown again in its place
/// while positions shift. Updates of parameters go to the pages on screen and to those that are
/// registered for automatic updates.
class CWIDGET_EXPORT CPageWidget : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentPage STORED false)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageWidget(QWidget* parent = nullptr);
    ~CPageWidget() override;

    Q_INVOKABLE void addPage(QWidget* page);
    void insertPage(int index, QWidget* page);
    void removePage(int index);
    int hideCount() const;
    int count() const;
    int currentIndex() const;
    QWidget* widget(int index) const;

    void setBackgroundColor(const QColor& color);

    void openPageAutoUpdate(int number);
    void closePageAutoUpdate(int number);
    void updateParm(void* data, unsigned int size) override;
    void dump(int id) const;

    using CWidget::setSize;
    void setSize(int width, int height) override;

public Q_SLOTS:
    void setCurrentPage(int index);
    void showPage(int number);
    void hidePage(int number);

Q_SIGNALS:
    /// Page \a index, from 0, is about to be shown.
    void currentPageChanged(int index);

private:
    typedef QPointer<QWidget> PagePointer; // an application may delete a page that is hidden

    void letBarGrow();
    QWidget* takeHiddenPage(int number);
    int positionBehind(int number) const;
    QList<QWidget*> updateTargets() const;

    QStackedWidget* m_stack;
    CPageBar* m_pageBar;
    QList<PagePointer> m_hiddenPages;
    QList<int> m_autoUpdatePages;

    Q_DISABLE_COPY(CPageWidget)
};

#endif
