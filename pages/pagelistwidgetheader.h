#ifndef CWIDGET_PAGES_PAGELISTWIDGETHEADER_H
#define CWIDGET_PAGES_PAGELISTWIDGETHEADER_H

#include "../widgets/widget.h"

class QPainter;

/// The strip over the rows of a paged list: a title in the top left corner and, in the bottom right
/// one, the current value.
class CWIDGET_EXPORT CPageListWidgetHeader : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageListWidgetHeader(QWidget* parent = nullptr);
    CPageListWidgetHeader(const QString& title, const QString& text, QWidget* parent = nullptr);
    ~CPageListWidgetHeader() override;

    bool initialize() override;

    QString title() const;
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
