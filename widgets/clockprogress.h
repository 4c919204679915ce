#ifndef CWIDGET_WIDGETS_CLOCKPROGRESS_H
#define CWIDGET_WIDGETS_CLOCKPROGRESS_H

#include "widget.h"

class QTimer;

/// Shows that something is going on: a clock face that turns between start() and stop(), and
/// optionally a text over it that tells how far it is. All clocks of a process turn together, one
/// step every 100 ms.
class CWIDGET_EXPORT CClockProgress : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int format READ format WRITE setFormat)
    Q_PROPERTY(bool running READ isRunning WRITE setRunning)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CClockProgress(QWidget* parent = nullptr);
    ~CClockProgress() override;

    void start();
    void stop();
    bool isRunning() const;
    void setRunning(bool running);

    void setRange(int minimum, int maximum);
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    int value() const;
    void setValue(int value);
    int format() const;
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
