#include "support/testing.h"

#include <QDir>
#include <QFile>
#include <QPainter>

namespace testing
{

QImage render(QWidget* widget, const QColor& ground)
{
    QImage image = canvas(widget, ground);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage canvas(const QWidget* widget, const QColor& ground)
{
    return canvas(widget->size(), ground);
}

QImage canvas(const QSize& size, const QColor& ground)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground.rgba());
    return image;
}

namespace
{

bool isSameColor(QRgb a, QRgb b)
{
    const int tolerance = testcompat::colorTolerance();
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance &&
           qAbs(qBlue(a) - qBlue(b)) <= tolerance && qAbs(qAlpha(a) - qAlpha(b)) <= tolerance;
}

/// Multiplied with the alpha channel as soon as one of the pictures is: to divide by it again gives
/// other roundings on other processors.
QImage::Format commonFormat(const QImage& a, const QImage& b)
{
    const QImage::Format multiplied = QImage::Format_ARGB32_Premultiplied;
    return a.format() == multiplied || b.format() == multiplied ? multiplied
                                                                : QImage::Format_ARGB32;
}

} // namespace

QString difference(const QImage& actual, const QImage& expected)
{
    if (actual.size() != expected.size())
        return QString::fromLatin1("the picture is %1 x %2 instead of %3 x %4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    const QImage::Format format = commonFormat(actual, expected);
    const QImage a = actual.convertToFormat(format);
    const QImage b = expected.convertToFormat(format);
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (isSameColor(a.pixel(x, y), b.pixel(x, y)))
                continue;
            const QString base = QString::fromLatin1(QTest::currentTestFunction());
            a.save(base + QLatin1String("-actual.png"));
            b.save(base + QLatin1String("-expected.png"));
            return QString::fromLatin1("pixel (%1, %2) is %3 instead of %4")
                .arg(x)
                .arg(y)
                .arg(a.pixel(x, y), 8, 16, QLatin1Char('0'))
                .arg(b.pixel(x, y), 8, 16, QLatin1Char('0'));
        }
    }
    return QString();
}

WidgetStyle styleOf(Style::Field field, const QFont& font)
{
    Style entry;
    entry.field = field;
    entry.font = font;
    WidgetStyle style;
    style.styles.append(entry);
    return style;
}

QFont testFont(int pixelSize, bool bold)
{
    QFont font(QLatin1String("Arial"));
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// ---- Messages

Messages* Messages::s_current = nullptr;

Messages::Messages()
{
    s_current = this;
    testcompat::receiveMessages(&Messages::receive);
}

Messages::~Messages()
{
    testcompat::receiveMessages(nullptr);
    s_current = nullptr;
}

void Messages::receive(QtMsgType type, const QString& text)
{
    (type == QtDebugMsg ? s_current->m_debugs : s_current->m_warnings).append(text);
}

QStringList Messages::debugs() const
{
    return m_debugs;
}

QStringList Messages::warnings() const
{
    return m_warnings;
}

void Messages::clear()
{
    m_debugs.clear();
    m_warnings.clear();
}

// ---- TemporaryFolder

TemporaryFolder::TemporaryFolder()
{
    static int count = 0;
    m_path = QString::fromLatin1("%1/cwidget-test-%2-%3")
                 .arg(QDir::tempPath())
                 .arg(QCoreApplication::applicationPid())
                 .arg(++count);
    QDir().mkpath(m_path);
}

TemporaryFolder::~TemporaryFolder()
{
    QDir folder(m_path);
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (int i = 0; i < names.size(); ++i)
        folder.remove(names.at(i));
    folder.rmdir(m_path);
}

QString TemporaryFolder::path() const
{
    return m_path;
}

QString TemporaryFolder::write(const QString& name, const QByteArray& content) const
{
    const QString path = m_path + QLatin1Char('/') + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

// ---- EventCounter

EventCounter::EventCounter(QObject* watched, QEvent::Type type) : m_type(type), m_count(0)
{
    watched->installEventFilter(this);
}

int EventCounter::count() const
{
    return m_count;
}

void EventCounter::clear()
{
    m_count = 0;
}

bool EventCounter::eventFilter(QObject* watched, QEvent* event)
{
    Q_UNUSED(watched);
    if (event->type() == m_type)
        ++m_count;
    return false;
}

} // namespace testing
