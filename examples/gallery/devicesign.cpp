#include "devicesign.h"

#include <QPainter>

namespace
{

const int side = 24;
const qreal strokeWidth = 2;
const QColor bright(0xFF, 0xFF, 0xFF);
const QColor dim(0x8C, 0x91, 0xA8);

void drawKeyboard(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(2, 6, 20, 13), 2, 2);
    for (int key = 0; key < 4; ++key)
        painter->fillRect(QRect(5 + key * 4, 10, 2, 2), painter->pen().color());
    painter->fillRect(QRect(7, 14, 10, 2), painter->pen().color());
}

void drawMouse(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(6, 3, 12, 18), 6, 6);
    painter->drawLine(QPointF(12, 7), QPointF(12, 10));
}

void drawStorage(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(6, 9, 12, 12), 2, 2);
    painter->drawPolyline(QPolygonF()
                          << QPointF(8, 9) << QPointF(8, 3) << QPointF(16, 3) << QPointF(16, 9));
}

} // namespace

DeviceSign::DeviceSign(CWidgetStyle::DeviceType type, QWidget* parent)
    : CWidget(parent), m_type(type), m_attached(CWidgetStyle::isDeviceAvailable(type))
{
    setSize(side, side);
}

void DeviceSign::refresh()
{
    const bool attached = CWidgetStyle::isDeviceAvailable(m_type);
    if (attached == m_attached)
        return;
    m_attached = attached;
    update();
}

void DeviceSign::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(m_attached ? bright : dim, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (m_type) {
    case CWidgetStyle::DeviceKeyboard:
        drawKeyboard(&painter);
        break;
    case CWidgetStyle::DeviceMouse:
        drawMouse(&painter);
        break;
    case CWidgetStyle::DeviceStorage:
        drawStorage(&painter);
        break;
    }
}
