#ifndef CWIDGET_WIDGETS_TOPTITLEAREA_H
#define CWIDGET_WIDGETS_TOPTITLEAREA_H

#include "widgets/widget.h"

/// A strip with a title, as it stands over a screen or an entry field.
class CWIDGET_EXPORT CTopTitleArea : public CWidget
{
    Q_OBJECT

public:
    explicit CTopTitleArea(QWidget* parent = 0);
    ~CTopTitleArea() override;

    QString title() const;
    void setTitle(const QString& title);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;

    Q_DISABLE_COPY(CTopTitleArea)
};

#endif
