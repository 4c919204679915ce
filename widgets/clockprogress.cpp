#include "widgets/clockprogress.h"

#include "style/keptpictures_p.h"

#include <QPainter>
#include <QTimer>

namespace
{

const int faceSize = 30;
const int frameCount = 11;
const int frameInterval = 100; // ms
const int textPointSize = 8;

enum Format {
    Percentage = 0,
    ValueOfMaximum = 1,
    NoText = 2
};

// The frame that all clocks show, 0 to 10.
int COUNT = 0;

} // namespace

/// A hidden clock of 30 x 30 pixels that stands still and shows no text.
CClockProgress::CClockProgress(QWidget* parent)
    : CWidget(parent),
      m_timer(new QTimer(this)),
      m_showText(false),
      m_format(NoText),
      m_maximum(0),
      m_minimum(0),
      m_value(0)
{
    connect(m_timer, SIGNAL(timeout()), this, SLOT(roll()));
    setSize(faceSize, faceSize);
    setVisible(false);
}

CClockProgress::~CClockProgress()
{
}

/// Starts to turn, a frame every 100 ms, and shows the clock.
void CClockProgress::start()
{
    m_timer->start(frameInterval);
    setVisible(true);
}

/// Stands still and hides the clock. The next start() goes on with the frame where it stopped.
void CClockProgress::stop()
{
    m_timer->stop();
    setVisible(false);
}

/// Whether the clock turns; false by default.
bool CClockProgress::isRunning() const
{
    return m_timer->isActive();
}

/// Calls start() or stop().
void CClockProgress::setRunning(bool running)
{
    if (running)
        start();
    else
        stop();
}

/// Sets the range, 0 to 0 by default, and repaints. The bounds may come in either order; negative
/// ones become 0. The value stays, even outside of the range.
void CClockProgress::setRange(int minimum, int maximum)
{
    m_maximum = qMax(minimum, maximum);
    m_minimum = qMax(0, qMin(minimum, maximum));
    m_maximum = qMax(m_maximum, m_minimum);
    update();
}

/// The lower end of the range, 0 by default.
int CClockProgress::minimum() const
{
    return m_minimum;
}

/// Sets the lower end of the range, and with it the upper one where this would be below, and
/// repaints.
void CClockProgress::setMinimum(int minimum)
{
    setRange(minimum, qMax(minimum, m_maximum));
}

/// The upper end of the range, 0 by default.
int CClockProgress::maximum() const
{
    return m_maximum;
}

/// Sets the upper end of the range, and with it the lower one where this would be above, and
/// repaints.
void CClockProgress::setMaximum(int maximum)
{
    setRange(qMin(m_minimum, maximum), qMax(0, maximum));
}

/// The value, 0 by default.
int CClockProgress::value() const
{
    return m_value;
}

/// Sets the value, clamped to the range, and repaints.
void CClockProgress::setValue(int value)
{
    m_value = value < m_minimum ? m_minimum : qMin(value, m_maximum);
    update();
}

/// What text is over the clock, see setFormat(); 2, none, by default.
int CClockProgress::format() const
{
    return m_format;
}

/// Sets the text over the clock and repaints: 0 is "value / maximum" as a percentage, 1 the value
/// and the maximum; anything else is no text.
void CClockProgress::setFormat(int format)
{
    m_format = format;
    m_showText = format == Percentage || format == ValueOfMaximum;
    update();
}

/// Turns all clocks a frame further, and repaints this one.
void CClockProgress::roll()
{
    update();
    COUNT = (COUNT + 1) % frameCount;
}

/// Paints the clock in the middle, and over it the text of the format.
void CClockProgress::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    drawFace(&painter);
    drawText(&painter);
}

QRect CClockProgress::faceRect() const
{
    return QRect((width() - 1) / 2 - faceSize / 2, (height() - 1) / 2 - faceSize / 2, faceSize,
                 faceSize);
}

/// One pixel up and left of the widget's own rectangle.
QRect CClockProgress::textRect() const
{
    return rect().translated(-1, -1);
}

/// The text over the clock. Deliberate: the percentage is a division of integers, 0 or 1 and not up
/// to 100. Without a maximum it is 0.
QString CClockProgress::text() const
{
    if (m_format == Percentage)
        return QString::fromLatin1("%1 %").arg(m_maximum > 0 ? m_value / m_maximum : 0);
    return QString::fromLatin1("%1/%2").arg(m_value).arg(m_maximum);
}

void CClockProgress::drawFace(QPainter* painter)
{
    const QPixmap strip = keptpictures::image(":/images/MISC_PROGCLK_11states.png");
    painter->drawPixmap(faceRect(), strip, QRect(COUNT * faceSize, 0, faceSize, faceSize));
}

void CClockProgress::drawText(QPainter* painter)
{
    if (!m_showText)
        return;
    painter->setFont(QFont(QLatin1String("Arial"), textPointSize, QFont::Bold));
    painter->setPen(Qt::white);
    painter->drawText(textRect(), Qt::AlignCenter, text());
}
