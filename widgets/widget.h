#ifndef CWIDGET_WIDGETS_WIDGET_H
#define CWIDGET_WIDGETS_WIDGET_H

#include "../style/global.h"
#include "../style/style.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

class QPainter;

/// The themed base of most widgets of the library: a background of a colour, a picture and a
/// border, a set of virtual operations that containers call on their children, styling from the
/// style file, and, optionally, management as one of the screens of the widget stack.
class CWIDGET_EXPORT CWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CWidget(QWidget* parent = nullptr);
    ~CWidget() override;

    // Containers reach these through CWidget pointers; their order is part of the interface.
    virtual unsigned int type() const;
    virtual void apply();
    virtual bool initialize();
    virtual bool load(const QString& name);
    virtual bool save(const QString& name);
    virtual void updateParm(void* data, unsigned int size);
    virtual void setSize(int width, int height);
    virtual void setSize(const QSize& size);
    virtual void setFixedSize(int width, int height);
    virtual void setWidth(int width);
    virtual void setHeight(int height);
    virtual void clientWndStateChanged(int state);
    virtual void translate();
    virtual void updateWidgetStyle();

    using QWidget::setFixedSize;

    QColor getBackgroundColor() const;
    void setBackgroundColor(const QColor& color);
    QColor getBorderColor() const;
    void setBorderColor(const QColor& color);
    QPixmap getBackground() const;
    void setBackground(const QPixmap& pixmap);
    int getBorderWidth() const;
    void setBorderWidth(int width);
    void setTransparency(int alpha);
    void setTransparentEnabled(bool enabled);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setAutoManagment(bool enabled);
    void setWidgetStyle(WidgetStyle style);

public Q_SLOTS:
    void lockWidget();
    void unlockWidget();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void drawBackgroundColor(QPainter* painter, const QRegion& region);
    void drawBackgroundPixmap(QPainter* painter);
    void drawBorder(QPainter* painter);

    int m_borderWidth;
    QString m_configurationName;
    QColor m_backgroundColor;
    QColor m_borderColor;
    QPixmap m_background;
    bool m_autoStyleEnabled;
    bool m_autoManagment;
    bool m_transparentEnabled;

    Q_DISABLE_COPY(CWidget)
};

#endif
