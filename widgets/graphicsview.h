#ifndef CWIDGET_WIDGETS_GRAPHICSVIEW_H
#define CWIDGET_WIDGETS_GRAPHICSVIEW_H

#include "../style/global.h"

#include <QColor>
#include <QGraphicsView>

/// A graphics view with a background of a colour and a border, both under the scene.
class CWIDGET_EXPORT CGraphicsView : public QGraphicsView
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)

public:
    explicit CGraphicsView(QWidget* parent = nullptr);
    ~CGraphicsView() override;

    virtual void updateParm(void* data, unsigned int size);

    int getBorderWidth() const;
    void setBorderWidth(int width);
    QColor getBorderColor() const;
    void setBorderColor(const QColor& color);
    QColor getBackgroundColor() const;
    void setBackgroundColor(const QColor& color);

    void setSize(int width, int height);
    void setWidth(int width);
    void setHeight(int height);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_borderWidth;
    QColor m_borderColor;
    QColor m_backgroundColor;

    Q_DISABLE_COPY(CGraphicsView)
};

#endif
