#ifndef CWIDGET_WIDGETS_CHECKBOX_H
#define CWIDGET_WIDGETS_CHECKBOX_H

#include "../style/global.h"
#include "../style/style.h"

#include <QCheckBox>
#include <QColor>
#include <QRect>

/// The touch check box: a square with a drawn tick, a caption beside it, and optionally a thin
/// frame around both. It changes as soon as a finger touches it, and announces that; what the
/// application sets with setChecked() stays silent.
///
/// The state is its own. That of Qt's button, which isChecked(), setChecked(), checkState() and
/// setCheckState() hide here, is never set, so reach the box through a pointer of this class.
class CWIDGET_EXPORT CCheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)
    Q_PROPERTY(bool borderVisible READ isBorderVisible WRITE setBorderVisible)
    Q_PROPERTY(QColor foregroundColor READ foregroundColor WRITE setForegroundColor)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CCheckBox(QWidget* parent = nullptr);
    explicit CCheckBox(const QString& text, QWidget* parent = nullptr);
    ~CCheckBox() override;

    bool isChecked() const;
    void setChecked(bool checked);
    Qt::CheckState checkState() const;
    void setCheckState(Qt::CheckState state);

    bool isBorderVisible() const;
    void setBorderVisible(bool visible);
    QColor foregroundColor() const;
    void setForegroundColor(const QColor& color);
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setWidgetStyle(WidgetStyle style);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool hitButton(const QPoint& point) const override;
    void nextCheckState() override;
    void checkStateSet() override;

private:
    QRect boxRect(int height) const;
    int captionWidth() const;
    QRect captionRect() const;
    QRect borderRect() const;
    void drawBackground(QPainter* painter);
    void drawBox(QPainter* painter);
    void drawTick(QPainter* painter);
    void drawCaption(QPainter* painter);
    void drawBorder(QPainter* painter);

    bool m_borderVisible;
    bool m_autoStyleEnabled;
    QColor m_backgroundColor;
    QColor m_foregroundColor;
    QRect m_box;
    int m_checkState;

    Q_DISABLE_COPY(CCheckBox)
};

#endif
