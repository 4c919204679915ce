#include "widgets/lineedit.h"

#include "style/stylewalk_p.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"
#include "widgets/painting_p.h"
#include "widgets/sheetfont_p.h"

#include <QPointer>

namespace
{

const char fieldStyleSheet[] = "border: 0px;"; // the frame is painted here

} // namespace

/// An empty field, 28 pixels high, that opens the general keypad without a title and a range; its
/// font is that of the style file's entry "CLineEdit".
CLineEdit::CLineEdit(QWidget* parent)
    : QLineEdit(parent),
      m_skpActive(true),
      m_skpType(CKeyPadFactory::SKP_GENERAL),
      m_autoStyleEnabled(true),
      m_rangeEnabled(false),
      m_minimum(0),
      m_maximum(0),
      m_borderVisible(true)
{
    setFixedHeight(metrics::controlHeight);
    // The font comes first, as a sheet would have to go away for it.
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CLineEdit"), nullptr));
    setStyleSheet(QLatin1String(fieldStyleSheet));
}

CLineEdit::~CLineEdit()
{
}

/// The title of the keypad, empty by default.
QString CLineEdit::title() const
{
    return m_title;
}

/// Sets the title of the keypad.
void CLineEdit::setTitle(const QString& title)
{
    m_title = title;
}

/// Whether touching the field may open a keypad; true by default.
bool CLineEdit::isSKPActive() const
{
    return m_skpActive;
}

/// Sets whether touching the field may open a keypad.
void CLineEdit::setSKPActive(bool active)
{
    m_skpActive = active;
}

/// The kind of keypad, by default the general one.
CKeyPadFactory::KeyPadType CLineEdit::skpType() const
{
    return m_skpType;
}

/// Sets the kind of keypad. An unknown one becomes the general keypad.
void CLineEdit::setSKPType(CKeyPadFactory::KeyPadType type)
{
    const bool known = type >= CKeyPadFactory::SKP_GENERAL && type <= CKeyPadFactory::SKP_FLOAT;
    m_skpType = known ? type : CKeyPadFactory::SKP_GENERAL;
}

/// Makes the keypad accept numbers from \a min to \a max only. There is no range by default.
void CLineEdit::setRange(int min, int max)
{
    m_rangeEnabled = true;
    m_minimum = min;
    m_maximum = max;
}

/// Stores the bounds and gives the keypad a range. Deliberate: that is the integer one, from 0 to 0
/// until it is set; the text bounds are kept and used nowhere.
void CLineEdit::setRange(const QString& min, const QString& max)
{
    m_rangeEnabled = true;
    m_minimumText = min;
    m_maximumText = max;
}

/// Whether the keypad has a range, as it has from the first setRange() on.
bool CLineEdit::isRangeEnabled() const
{
    return m_rangeEnabled;
}

/// Sets whether the keypad has a range. The bounds stay as they are.
void CLineEdit::setRangeEnabled(bool enabled)
{
    m_rangeEnabled = enabled;
}

/// The lowest number of the range, 0 by default.
int CLineEdit::minimum() const
{
    return m_minimum;
}

/// Gives the keypad a range from \a min to the highest number that it has.
void CLineEdit::setMinimum(int min)
{
    setRange(min, m_maximum);
}

/// The highest number of the range, 0 by default.
int CLineEdit::maximum() const
{
    return m_maximum;
}

/// Gives the keypad a range from the lowest number that it has to \a max.
void CLineEdit::setMaximum(int max)
{
    setRange(m_minimum, max);
}

/// Whether the field has a frame of one pixel; true by default.
bool CLineEdit::isBorderVisible() const
{
    return m_borderVisible;
}

/// Sets whether the field has a frame of one pixel, and repaints.
void CLineEdit::setBorderVisible(bool visible)
{
    m_borderVisible = visible;
    update();
}

/// Whether setWidgetStyle() applies anything; true by default.
bool CLineEdit::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CLineEdit::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Sets the font. The style sheet is away meanwhile: with one, a field ignores its font.
void CLineEdit::setFont(const QFont& font)
{
    if (sheetfont::isStyledBy(this, fieldStyleSheet) && sheetfont::hasFont(this, font))
        return;
    const QString sheet = styleSheet();
    setStyleSheet(QString());
    QWidget::setFont(font);
    setStyleSheet(sheet);
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CLineEdit::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// A lifted finger opens the keypad, also over a read-only field. Whether or not it changed the
/// text, textEdited() tells when it has closed.
void CLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (!opensKeyPad())
        return;
    const QPointer<CLineEdit> self(this); // may be deleted while the keypad is open
    const QString result = askKeyPad();
    if (!self)
        return;
    setText(result);
    Q_EMIT textEdited(text());
}

bool CLineEdit::opensKeyPad() const
{
    return m_skpActive && !CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceKeyboard);
}

/// Waits until the keypad closes and returns its text.
QString CLineEdit::askKeyPad()
{
    if (m_rangeEnabled)
        return CKeyPadFactory::accessKeyPad(m_title, text(), m_skpType, m_minimum, m_maximum, this);
    return CKeyPadFactory::accessKeyPad(m_title, text(), m_skpType, this);
}

/// Paints Qt's line edit and, unless it is switched off, a frame of one pixel.
void CLineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (m_borderVisible)
        painting::drawThinFrame(this);
}
