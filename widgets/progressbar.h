#ifndef CWIDGET_WIDGETS_PROGRESSBAR_H
#define CWIDGET_WIDGETS_PROGRESSBAR_H

#include "../style/global.h"

#include <QColor>
#include <QRect>
#include <QWidget>

/// How far a task has come: a glossy bar that fills from the left, and whose colour goes from red
/// over orange to green.
class CWIDGET_EXPORT CProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(QColor progressColor READ progressColor WRITE setProgressColor)
    Q_PROPERTY(bool gradientEnabled READ isGradientEnabled WRITE setGradientEabled)

public:
    explicit CProgressBar(QWidget* parent = nullptr);
    ~CProgressBar() override;

    void setRange(int minimum, int maximum);
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    int value() const;
    void setValue(int value);
    QColor borderColor() const;
    void setBorderColor(const QColor& color);
    QColor progressColor() const;
    void setProgressColor(const QColor& color);
    bool isGradientEnabled() const;
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
