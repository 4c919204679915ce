#include "widgets/pushbutton.h"

#include "style/keptpictures_p.h"
#include "style/qtcompat.h"
#include "style/stylewalk_p.h"
#include "style/table_p.h"
#include "style/widgetstyle.h"
#include "widgets/heldupdates_p.h"
#include "widgets/painting_p.h"
#include "widgets/shapedtext_p.h"

#include <QIcon>
#include <QPainter>
#include <QPointer>

namespace
{

const int buttonWidth = 120;
const int buttonHeight = 40;
const int defaultTextSize = 10;
const int borderWidth = 2;
const int iconMargin = 9; // on both sides of the icon together, left of a text
const int textMargin = 5; // between icon and text

// The pictures of each style, by the style's number.
const struct StyleRow {
    CWidgetStyle::ButtonStatus released;
    CWidgetStyle::ButtonStatus pressed;
} styles[] = {
    // clang-format off
    {CWidgetStyle::GrayReleased,   CWidgetStyle::GrayPressed},
    {CWidgetStyle::GreenReleased,  CWidgetStyle::GreenPressed},
    {CWidgetStyle::OrangeReleased, CWidgetStyle::OrangePressed},
    {CWidgetStyle::RedReleased,    CWidgetStyle::RedPressed},
    {CWidgetStyle::FixedReleased,  CWidgetStyle::FixedPressed},
    // clang-format on
};
static_assert(table::count(styles) == CPushButton::FixedStyle + 1, "each ButtonStyle has pictures");

// The attributes of each state, by the state's number.
const struct StateRow {
    CPushButton::ExtraAttr pixmap;
    CPushButton::ExtraAttr textColor;
} states[] = {
    // clang-format off
    {CPushButton::PressedPixmap,  CPushButton::PressedTextColor},
    {CPushButton::ReleasedPixmap, CPushButton::ReleasedTextColor},
    {CPushButton::SelectedPixmap, CPushButton::SelectedTextColor},
    // clang-format on
};
static_assert(table::count(states) == CPushButton::Selected + 1, "each ButtonState has a row");
static_assert(table::count(states) * 2 == CPushButton::SelectedTextColor,
              "each ExtraAttr, from 1, belongs to a state");

void drawSmoothly(QPainter* painter, const QRect& rect, const QPixmap& pixmap)
{
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->drawPixmap(rect, pixmap);
    painter->setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

/// A button of 120 x 40 pixels on a violet background, without text and pictures, that takes no
/// focus; its font is that of the style file's entry "CPushButton".
CPushButton::CPushButton(QWidget* parent)
    : QPushButton(parent),
      m_selected(false),
      m_textSize(defaultTextSize),
      m_textColor(Qt::black),
      m_backgroundColor(99, 94, 128, 255),
      m_buttonStyle(NoStyle),
      m_normalSize(true),
      m_autoStyleEnabled(true),
      m_looksPressed(false),
      m_shapedText(nullptr)
{
    initialize();
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CPushButton"), nullptr));
}

CPushButton::~CPushButton()
{
    delete m_shapedText;
}

/// Sets the button up as a touch button: flat, without focus, 120 x 40 pixels. Returns true.
bool CPushButton::initialize()
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    setFixedSize(buttonWidth, buttonHeight);
    return true;
}

/// The text that the button shows, empty by default. QPushButton's own text is not used.
QString CPushButton::getText() const
{
    return m_text;
}

/// Sets the text and repaints.
void CPushButton::setText(const QString& text)
{
    m_text = text;
    update();
}

/// 0 while the text is hidden; 10 by default.
int CPushButton::getTextSize() const
{
    return m_textSize;
}

/// Shows the text, or hides it when \a size is 0, and repaints. Any other value
/// only shows it: the size of the letters is that of the widget's font.
void CPushButton::setTextSize(int size)
{
    m_textSize = size;
    update();
}

/// The colour of the text, black by default.
QColor CPushButton::getTextColor() const
{
    return m_textColor;
}

/// Sets the colour of the text and repaints. The next state that has a text colour replaces it.
void CPushButton::setTextColor(const QColor& color)
{
    m_textColor = color;
    update();
}

/// The colour of the border of 2 pixels; invalid, the default, when there is none.
QColor CPushButton::getBorderColor() const
{
    return m_borderColor;
}

/// Sets the colour of the border and repaints.
void CPushButton::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

/// The colour of the background; invalid when there is none.
QColor CPushButton::getBackgroundColor() const
{
    return m_backgroundColor;
}

/// Sets the colour of the background and repaints.
void CPushButton::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    painting::changeGround(this, color);
    update();
}

/// The picture that fills the button; null by default.
QPixmap CPushButton::getBackground() const
{
    return m_background;
}

/// Sets the picture, which is scaled to fill the button, and repaints. The next state that has a
/// picture replaces it.
void CPushButton::setBackground(const QPixmap& pixmap)
{
    m_background = pixmap;
    update();
}

/// Sets what a state brings up from now on; the current look stays. Unknown attributes are ignored.
void CPushButton::setExtraAttr(ExtraAttr attr, const QVariant& value)
{
    if (attr < PressedPixmap || attr > SelectedTextColor)
        return;
    m_extraAttrs.insert(attr, value);
}

/// Gives the button one of the ready-made looks with white text, from the pictures of normal size
/// or from the big ones. An unknown style is the default one. Selecting the button does not change
/// it.
void CPushButton::setStyle(ButtonStyle style, bool normalSize)
{
    m_buttonStyle = table::has(styles, style) ? style : DefaultStyle;
    m_normalSize = normalSize;
    const StyleRow& row = styles[m_buttonStyle];
    const QPixmap released = keptpictures::button(row.released, normalSize);
    setBackground(released);
    setExtraAttr(PressedPixmap, keptpictures::button(row.pressed, normalSize));
    setExtraAttr(ReleasedPixmap, released);
    setTextColor(Qt::white);
}

/// The look last given to setStyle(); NoStyle, the default, when there is none.
CPushButton::ButtonStyle CPushButton::buttonStyle() const
{
    return m_buttonStyle;
}

/// Gives the button one of the ready-made looks, as setStyle() with isNormalSize(). NoStyle takes
/// the pictures of the released and the pressed button away and makes the text black.
void CPushButton::setButtonStyle(ButtonStyle style)
{
    if (style != NoStyle) {
        setStyle(style, m_normalSize);
        return;
    }
    m_buttonStyle = NoStyle;
    m_extraAttrs.remove(PressedPixmap);
    m_extraAttrs.remove(ReleasedPixmap);
    setBackground(QPixmap());
    setTextColor(Qt::black);
}

/// Whether a ready-made look has the pictures of normal size, the default, or the big ones.
bool CPushButton::isNormalSize() const
{
    return m_normalSize;
}

/// Sets the size of the pictures, those of the look that the button has included.
void CPushButton::setNormalSize(bool normalSize)
{
    m_normalSize = normalSize;
    if (m_buttonStyle != NoStyle)
        setStyle(m_buttonStyle, normalSize);
}

/// What was last given to setSelected(); false by default. A click does not change it.
bool CPushButton::isSelected() const
{
    return m_selected;
}

/// Selects the button or not and brings up the selected or the released look. Deliberate: a click
/// afterwards leaves the released look although the button stays selected.
void CPushButton::setSelected(bool selected)
{
    m_selected = selected;
    updateStatus(selected ? Selected : Released);
}

/// Brings up the picture and the text colour of \a state, as far as it has them, and repaints. An
/// unknown state has none.
void CPushButton::updateStatus(ButtonState state)
{
    if (const StateRow* row = table::row(states, state)) {
        m_looksPressed = state == Pressed;
        if (m_extraAttrs.contains(row->pixmap))
            m_background = m_extraAttrs.value(row->pixmap).value<QPixmap>();
        if (m_extraAttrs.contains(row->textColor))
            m_textColor = qtcompat::namedColor(m_extraAttrs.value(row->textColor).toString());
    }
    update();
}

/// Whether setWidgetStyle() applies anything; true by default.
bool CPushButton::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CPushButton::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CPushButton::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// Shows the pressed look, if enabled.
void CPushButton::mousePressEvent(QMouseEvent* event)
{
    const QPointer<CPushButton> self(this); // a slot of pressed() may delete the button
    {
        const HeldUpdates held(this, heldSignal(SIGNAL(pressed())));
        QAbstractButton::mousePressEvent(event);
    }
    if (self && isEnabled())
        updateStatus(Pressed);
}

/// Shows the released look, wherever the finger is lifted, also on a selected button.
void CPushButton::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<CPushButton> self(this); // a slot of clicked() may delete the button
    {
        const HeldUpdates held(this, heldSignal(SIGNAL(released())));
        QPushButton::mouseReleaseEvent(event);
    }
    if (self && isEnabled())
        updateStatus(Released);
}

/// A button that is disabled under the finger would look pressed for ever.
void CPushButton::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled() && m_looksPressed)
        updateStatus(Released);
}

/// The \a signal, the first that Qt emits for a touch, up to which the button need not be painted:
/// its look is about to change anyway. Null where it must be painted at once: where Qt's own look
/// is to be seen, and where slots would run before that, which might paint it.
const char* CPushButton::heldSignal(const char* signal) const
{
    const bool slotsCome = isCheckable() || receivers(signal) > 0;
    return painting::isOpaque(m_backgroundColor) && !slotsCome ? signal : nullptr;
}

/// Paints background, border, picture, icon and text, in this order.
void CPushButton::paintEvent(QPaintEvent* event)
{
    if (!painting::isOpaque(m_backgroundColor)) // else none of it would be visible
        QPushButton::paintEvent(event);
    painting::markGround(this, m_backgroundColor);
    const QPixmap icon = iconPixmap();
    QPainter painter(this);
    drawBackgroundColor(&painter);
    drawBorder(&painter);
    drawBackgroundPixmap(&painter);
    drawIcon(&painter, icon);
    drawText(&painter, !icon.isNull());
}

QPixmap CPushButton::iconPixmap() const
{
    return icon().pixmap(iconSize(), isEnabled() ? QIcon::Normal : QIcon::Disabled,
                         isChecked() ? QIcon::On : QIcon::Off);
}

/// The icon stands in the middle, or near the left edge when there is a text.
QRect CPushButton::iconRect() const
{
    const QSize size = iconSize();
    const int middle = m_text.isEmpty() ? width() - 1 : size.width() + iconMargin;
    return QRect(QPoint(middle / 2 - size.width() / 2, (height() - 1) / 2 - size.height() / 2),
                 size);
}

/// The text has the whole button, or what is right of the icon.
QRect CPushButton::textRect(bool hasIcon) const
{
    const int left = hasIcon ? iconSize().width() + textMargin : 0;
    return QRect(left, 0, width() - left, height());
}

/// Nothing where the picture leaves nothing of it to be seen.
void CPushButton::drawBackgroundColor(QPainter* painter)
{
    if (!painting::isCovered(painter, rect(), m_background))
        painting::drawFill(painter, rect(), m_backgroundColor);
}

void CPushButton::drawBorder(QPainter* painter)
{
    if (m_borderColor.isValid())
        painting::drawBorder(painter, size(), borderWidth, m_borderColor, m_backgroundColor);
}

void CPushButton::drawBackgroundPixmap(QPainter* painter)
{
    if (!m_background.isNull())
        drawSmoothly(painter, rect(), m_background);
}

void CPushButton::drawIcon(QPainter* painter, const QPixmap& pixmap)
{
    if (!pixmap.isNull())
        drawSmoothly(painter, iconRect(), pixmap);
}

void CPushButton::drawText(QPainter* painter, bool hasIcon)
{
    if (m_text.isEmpty() || m_textSize == 0)
        return;
    painter->setFont(font());
    painter->setPen(m_textColor);
    if (!m_shapedText)
        m_shapedText = new ShapedText;
    m_shapedText->draw(painter, textRect(hasIcon), m_text);
}
