#include "gallerywindow.h"

#include "support/xserver.h"

#include <QApplication>
#include <QDir>

namespace
{

const int patience = 15000; // ms
const int pause = 50;
const QSize panelSize(800, 600);

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

int numberAfter(const QString& text, const char* label)
{
    return text.section(latin(label), 1).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
}

} // namespace

GalleryWindow::GalleryWindow(const QStringList& arguments) : m_title(latin("Quorlin front panel"))
{
    start(latin(GALLERY), arguments);
}

GalleryWindow::GalleryWindow(const QString& title, const QString& program,
                             const QStringList& arguments)
    : m_title(title)
{
    start(program, arguments);
}

GalleryWindow::~GalleryWindow()
{
    if (isRunning()) {
        m_process.terminate();
        m_process.waitForFinished(patience);
    }
}

void GalleryWindow::start(const QString& program, const QStringList& arguments)
{
    m_process.setStandardErrorFile(latin("gallery-errors.txt"), QIODevice::Append);
    m_process.start(program, arguments);
}

bool GalleryWindow::isRunning()
{
    QCoreApplication::processEvents();
    return m_process.state() == QProcess::Running;
}

int GalleryWindow::exitCode()
{
    m_process.waitForFinished(patience);
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

bool GalleryWindow::waitUntilShown()
{
    for (int waited = 0; waited < patience; waited += pause) {
        m_id = testing::xdotool(QStringList() << latin("search") << latin("--onlyvisible")
                                              << latin("--name") << latin("^%1$").arg(m_title))
                   .section(QLatin1Char('\n'), -1);
        if (!m_id.isEmpty())
            break;
        QTest::qWait(pause);
    }
    if (m_id.isEmpty())
        return false;
    testing::xdotool(latin("windowactivate --sync ") + m_id);
    QProcess info; // xdotool's own geometry is wrong by the window manager's frame
    info.start(latin("xwininfo"), QStringList() << latin("-id") << m_id);
    info.waitForFinished(patience);
    const QString text = QString::fromLatin1(info.readAllStandardOutput());
    m_origin = QPoint(numberAfter(text, "Absolute upper-left X:"),
                      numberAfter(text, "Absolute upper-left Y:"));
    return true;
}

void GalleryWindow::moveTo(const QPoint& point)
{
    const QPoint onScreen = m_origin + point;
    testing::xdotool(latin("mousemove %1 %2").arg(onScreen.x()).arg(onScreen.y()));
}

void GalleryWindow::press(const QPoint& point)
{
    moveTo(point);
    testing::xdotool(latin("mousedown 1"));
}

void GalleryWindow::release()
{
    testing::xdotool(latin("mouseup 1"));
}

void GalleryWindow::click(const QPoint& point)
{
    press(point);
    release();
}

void GalleryWindow::separateClicks() const
{
    QTest::qWait(QApplication::doubleClickInterval() + 100);
}

void GalleryWindow::close()
{
    // As the window manager does it when its close button is pressed.
    testing::xdotool(latin("windowactivate --sync ") + m_id);
    testing::xdotool(latin("key alt+F4"));
}

void GalleryWindow::kill()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

QImage GalleryWindow::grab() const
{
    return testcompat::grabScreen().copy(QRect(m_origin, panelSize));
}

QString GalleryWindow::nextLine()
{
    for (int waited = 0; waited < patience && !m_process.canReadLine(); waited += pause)
        QTest::qWait(pause);
    return m_process.canReadLine() ? QString::fromUtf8(m_process.readLine()).trimmed() : QString();
}

bool GalleryWindow::waitForColor(const QPoint& point, const QColor& color) const
{
    for (int waited = 0; waited < patience; waited += pause) {
        if (grab().pixel(point) == color.rgb())
            return true;
        QTest::qWait(pause);
    }
    return false;
}

QString GalleryWindow::waitFor(const QImage& expected, const QRect& rect) const
{
    QString difference = latin("nothing was waited for");
    for (int waited = 0; waited < patience && !difference.isEmpty(); waited += pause) {
        QTest::qWait(pause);
        difference = testing::difference(grab().copy(rect), expected.copy(rect));
    }
    return difference;
}

QImage GalleryWindow::shot(const QString& name)
{
    static const testing::TemporaryFolder folder;
    static bool drawn = false;
    if (!drawn) {
        QProcess process;
        process.start(latin(GALLERY), QStringList() << latin("--shots") << folder.path());
        drawn = process.waitForFinished(4 * patience) && process.exitCode() == 0;
    }
    return QImage(folder.path() + QLatin1Char('/') + name + latin(".png"));
}
