#ifndef CWIDGET_WIDGETS_CLOCKPROGRESS_H
#define CWIDGET_WIDGETS_CLOCKPROGRESS_H

#include "widgets/widget.h"

class QTimer;

/// Shows that something is going on: a clock face that turns between start() and stop(), and if
/// wanted a text over it that tells how far it is. All clocks of a process turn together, each of
/// them a step further every 100 ms.
class CWIDGET_EXPORT CClockProgress : public CWidget
{
    Q_OBJECT

public:
    explicit CClockProgress(QWidget* parent = 0);
    ~CClockProgress() override;

    void start();
    void stop();

    void setRange(int minimum, int maximum);
    void setValue(int value);
    void setFormat(int format);

public Q_SLOTS:
    void roll();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect faceRect() const;
    QRect textRect() const;
    QString text() const;
    void drawFace(QPainter* painter);
    void drawText(QPainter* painter);

    QTimer* m_timer;
    bool m_showText;
    int m_format;
    int m_maximum;
    int m_minimum;
    int m_value;

    Q_DISABLE_COPY(CClockProgress)
};

#endif
