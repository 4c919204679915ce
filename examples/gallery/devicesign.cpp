#include "devicesign.h"

#include <QPainter>

namespace
{

const int side = 24;
const QColor bright(0xFF, 0xFF, 0xFF);
const QColor dim(0x7C, 0x80, 0x92);

void drawKeyboard(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(1.5, 6.5, 21, 12), 2, 2);
    for (int row = 0; row < 2; ++row) {
        for (int key = 0; key < 5; ++key)
            painter->fillRect(QRect(4 + key * 3 + row + key / 2, 9 + row * 3, 2, 1),
                              painter->pen().color());
    }
    painter->fillRect(QRect(7, 15, 10, 1), painter->pen().color());
}

void drawMouse(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(6.5, 2.5, 11, 19), 5.5, 5.5);
    painter->drawLine(QPointF(6.5, 10.5), QPointF(17.5, 10.5));
    painter->drawLine(QPointF(12, 3), QPointF(12, 10));
}

void drawStorage(QPainter* painter)
{
    painter->drawRoundedRect(QRectF(6.5, 8.5, 11, 13), 2, 2);
    painter->drawRect(QRectF(8.5, 2.5, 7, 6));
    painter->fillRect(QRect(10, 5, 1, 1), painter->pen().color());
    painter->fillRect(QRect(13, 5, 1, 1), painter->pen().color());
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
    painter.setPen(QPen(m_attached ? bright : dim, 1.5));
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
