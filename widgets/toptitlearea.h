#ifndef CWIDGET_WIDGETS_TOPTITLEAREA_H
#define CWIDGET_WIDGETS_TOPTITLEAREA_H

#include "widget.h"

/// A strip with a title, as it stands over a screen or an entry field.
class CWIDGET_EXPORT CTopTitleArea : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CTopTitleArea(QWidget* parent = nullptr);
    ~CTopTitleArea() override;

    QString title() const;
    void setTitle(const QString& title);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;

    Q_DISABLE_COPY(CTopTitleArea)
};

#endif
