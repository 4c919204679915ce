#include "widgets/dialog.h"

#include "widgets/painting_p.h"

#include <QPaintEvent>
#include <QPainter>

/// A dialog that paints nothing of its own: no colours, no border.
CDialog::CDialog(QWidget* parent) : QDialog(parent), m_borderWidth(0)
{
}

CDialog::~CDialog()
{
}

/// For derived classes: builds what the dialog consists of. Returns whether that worked.
bool CDialog::initialize()
{
    return true;
}

/// For derived classes: takes over the configuration \a name. Returns true; \a name is not kept.
bool CDialog::load(const QString& name)
{
    Q_UNUSED(name);
    return true;
}

/// For derived classes: stores the configuration \a name. Returns true; \a name is not kept.
bool CDialog::save(const QString& name)
{
    Q_UNUSED(name);
    return true;
}

/// Fixes the size, in pixels.
void CDialog::setSize(int width, int height)
{
    setFixedSize(width, height);
}

/// Fixes the width, in pixels.
void CDialog::setWidth(int width)
{
    setFixedWidth(width);
}

/// Fixes the height, in pixels.
void CDialog::setHeight(int height)
{
    setFixedHeight(height);
}

/// The width of the border in pixels, 0 by default.
int CDialog::getBorderWidth() const
{
    return m_borderWidth;
}

/// Sets the width of the border in pixels and repaints. Negative widths become 0: no border.
void CDialog::setBorderWidth(int width)
{
    m_borderWidth = qMax(0, width);
    update();
}

/// The colour of the border; invalid, the default, means that of the background.
QColor CDialog::getBorderColor() const
{
    return m_borderColor;
}

/// Sets the colour of the border and repaints.
void CDialog::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

/// The colour of the background; invalid, the default, when there is none.
QColor CDialog::getBackgroundColor() const
{
    return m_backgroundColor;
}

/// Sets the colour of the background and repaints.
void CDialog::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    painting::changeGround(this, color);
    update();
}

/// Paints background and border.
void CDialog::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    painting::markGround(this, m_backgroundColor);
    QPainter painter(this);
    painting::drawFill(&painter, rect(), m_backgroundColor, event->region());
    painting::drawBorder(&painter, size(), m_borderWidth, m_borderColor, m_backgroundColor);
}
