#ifndef CWIDGET_PAGES_PAGELISTWIDGETHEADER_H
#define CWIDGET_PAGES_PAGELISTWIDGETHEADER_H

#include "widgets/widget.h"

class QPainter;

/// The strip over the rows of a paged list: a title in the top left corner and, in the bottom right
/// one, the current value.
class CWIDGET_EXPORT CPageListWidgetHeader : public CWidget
{
    Q_OBJECT

public:
    explicit CPageListWidgetHeader(QWidget* parent = 0);
    CPageListWidgetHeader(const QString& title, const QString& text, QWidget* parent = 0);
    ~CPageListWidgetHeader() override;

    bool initialize() override;

    void setTitle(const QString& title);
    QString text() const;
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect titleRect() const;
    QRect textRect() const;
    void drawTitle(QPainter* painter);
    void drawText(QPainter* painter);

    QString m_title;
    QString m_text;

    Q_DISABLE_COPY(CPageListWidgetHeader)
};

#endif
