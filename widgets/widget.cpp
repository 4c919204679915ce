#include "widgets/widget.h"

#include "style/stylewalk_p.h"
#include "style/widgetstyle.h"
#include "widgets/painting_p.h"
#include "widgets/widgetstack.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

namespace
{

const unsigned int widgetType = 0x10063;
const unsigned int maximumAlpha = 255;

/// Calls \a operation on every direct child that is a CWidget.
void forEachChildWidget(const QWidget* parent, void (CWidget::*operation)())
{
    const QObjectList children = parent->children();
    for (int i = 0; i < children.size(); ++i) {
        if (CWidget* child = qobject_cast<CWidget*>(children.at(i)))
            (child->*operation)();
    }
}

} // namespace

/// An unstyled widget: no colours, no picture, no border. The style table is not consulted.
CWidget::CWidget(QWidget* parent)
    : QWidget(parent),
      m_borderWidth(0),
      m_autoStyleEnabled(true),
      m_autoManagment(false),
      m_transparentEnabled(false)
{
}

CWidget::~CWidget()
{
}

/// The type code of the style file's "type" attribute; the same for every widget of the library.
unsigned int CWidget::type() const
{
    return widgetType;
}

/// Makes changed settings visible: schedules a repaint.
void CWidget::apply()
{
    update();
}

/// For derived classes: builds what the widget consists of. Returns whether that worked.
bool CWidget::initialize()
{
    return true;
}

/// Stores \a name as the name of the widget's configuration. Returns true. Derived classes give it
/// its meaning.
bool CWidget::load(const QString& name)
{
    m_configurationName = name;
    return true;
}

/// Stores \a name as the name of the widget's configuration, as load() does. Returns true.
bool CWidget::save(const QString& name)
{
    m_configurationName = name;
    return true;
}

/// For derived classes: takes over changed parameters. What \a data and \a size mean is between the
/// caller and the class. Does nothing here.
void CWidget::updateParm(void* data, unsigned int size)
{
    Q_UNUSED(data);
    Q_UNUSED(size);
}

/// Fixes the size, in pixels.
void CWidget::setSize(int width, int height)
{
    QWidget::setFixedSize(width, height);
}

/// Fixes the size, in pixels, through setSize(int, int).
void CWidget::setSize(const QSize& size)
{
    setSize(size.width(), size.height());
}

/// Fixes the size, in pixels.
void CWidget::setFixedSize(int width, int height)
{
    QWidget::setFixedSize(width, height);
}

/// Fixes the width, in pixels.
void CWidget::setWidth(int width)
{
    QWidget::setFixedWidth(width);
}

/// Fixes the height, in pixels.
void CWidget::setHeight(int height)
{
    QWidget::setFixedHeight(height);
}

/// For derived classes: told that the state of the application's window changed. Does nothing here.
void CWidget::clientWndStateChanged(int state)
{
    Q_UNUSED(state);
}

/// For derived classes: takes over the texts of a changed language. Passes the call on to the
/// direct children that are CWidgets.
void CWidget::translate()
{
    forEachChildWidget(this, &CWidget::translate);
}

/// Styles the widget anew from the style table, looked up by its class name, and then its direct
/// children that are CWidgets, whether or not it has automatic styling itself. A plain QWidget in
/// between ends the walk.
void CWidget::updateWidgetStyle()
{
    bool found = false;
    const WidgetStyle style =
        CWidgetStyle::getWidgetStyle(QLatin1String(metaObject()->className()), &found);
    if (found)
        CWidget::setWidgetStyle(style); // Deliberate: the base's; only the font changes
    forEachChildWidget(this, &CWidget::updateWidgetStyle);
}

/// The colour of the background; invalid, the default, when there is none.
QColor CWidget::getBackgroundColor() const
{
    return m_backgroundColor;
}

/// Sets the colour of the background and repaints. Its alpha lets the parent shine through.
void CWidget::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    painting::changeGround(this, color);
    update();
}

/// The colour of the border; invalid, the default, means that of the background.
QColor CWidget::getBorderColor() const
{
    return m_borderColor;
}

/// Sets the colour of the border and repaints.
void CWidget::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

/// The picture on the background; null by default.
QPixmap CWidget::getBackground() const
{
    return m_background;
}

/// Sets the picture that is drawn, unscaled, into the top left corner, and repaints.
void CWidget::setBackground(const QPixmap& pixmap)
{
    m_background = pixmap;
    update();
}

/// The width of the border in pixels, 0 by default.
int CWidget::getBorderWidth() const
{
    return m_borderWidth;
}

/// Sets the width of the border in pixels and repaints. Negative widths become 0: no border.
void CWidget::setBorderWidth(int width)
{
    m_borderWidth = qMax(0, width);
    update();
}

/// Sets the alpha of the background's colour, from 0 (nothing of it is seen) to 255 (opaque), and
/// repaints. Other values are ignored.
void CWidget::setTransparency(int alpha)
{
    if (static_cast<unsigned int>(alpha) > maximumAlpha)
        return;
    m_backgroundColor.setAlpha(alpha);
    painting::changeGround(this, m_backgroundColor);
    update();
}

/// Sets whether the widget's window lets what is behind it shine through.
void CWidget::setTransparentEnabled(bool enabled)
{
    m_transparentEnabled = enabled;
    setAttribute(Qt::WA_TranslucentBackground, enabled);
}

/// Whether setWidgetStyle() applies anything; true by default.
bool CWidget::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CWidget::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Sets whether showing the widget goes through the widget stack: it then hides the managed widget
/// that was shown before and is pushed onto KQWidgetStack. Off by default. A managed widget is
/// popped before it is deleted. (The spelling of the name is kept.)
void CWidget::setAutoManagment(bool enabled)
{
    m_autoManagment = enabled;
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CWidget::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// Disables the widget.
void CWidget::lockWidget()
{
    setEnabled(false);
}

/// Enables the widget.
void CWidget::unlockWidget()
{
    setEnabled(true);
}

/// Has a tree of CWidgets take over the texts of another language, through translate() of the
/// topmost of them. Each gets this event, but that call goes down by itself.
void CWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && !qobject_cast<CWidget*>(parentWidget()))
        translate();
}

/// Paints background colour, background picture and border, in this order.
void CWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    painting::markGround(this, m_backgroundColor);
    QPainter painter(this);
    drawBackgroundColor(&painter, event->region());
    drawBackgroundPixmap(&painter);
    drawBorder(&painter);
}

void CWidget::drawBackgroundColor(QPainter* painter, const QRegion& region)
{
    painting::drawFill(painter, rect(), m_backgroundColor, region);
}

void CWidget::drawBackgroundPixmap(QPainter* painter)
{
    if (!m_background.isNull())
        painter->drawPixmap(QPointF(0.0, 0.0), m_background);
}

void CWidget::drawBorder(QPainter* painter)
{
    painting::drawBorder(painter, size(), m_borderWidth, m_borderColor, m_backgroundColor);
}

/// With auto-management on, hides the screen that is at the top of the stack and takes its place.
void CWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_autoManagment)
        KQWidgetStack::instance()->recordShown(this);
}
