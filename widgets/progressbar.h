#ifndef CWIDGET_WIDGETS_PROGRESSBAR_H
#define CWIDGET_WIDGETS_PROGRESSBAR_H

#include "style/global.h"

#include <QColor>
#include <QRect>
#include <QWidget>

/// How far a task has come: a glossy bar that fills from the left, and whose colour goes from red
/// over orange to green.
class CWIDGET_EXPORT CProgressBar : public QWidget
{
    Q_OBJECT

public:
    explicit CProgressBar(QWidget* parent = 0);
    ~CProgressBar() override;

    void setRange(int minimum, int maximum);
    void setValue(int value);
    void setBorderColor(const QColor& color);
    void setProgressColor(const QColor& color);
    void setGradientEabled(bool enabled);

    QRect getProgressRect() const;
    QColor getCurrentColor() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawGround(QPainter* painter);
    void drawProgress(QPainter* painter);

    int m_minimum;
    int m_maximum;
    int m_value;
    int m_inset;
    QColor m_borderColor;
    QColor m_progressColor;
    bool m_gradientEnabled;

    Q_DISABLE_COPY(CProgressBar)
};

#endif
