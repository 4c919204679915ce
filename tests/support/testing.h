#ifndef CWIDGET_TESTS_SUPPORT_TESTING_H
#define CWIDGET_TESTS_SUPPORT_TESTING_H

#include "style/widgetstyle.h"
#include "testcompat.h"

#include <QEvent>
#include <QImage>
#include <QStringList>
#include <QWidget>

namespace testing
{

/// What \a widget paints, over \a ground.
QImage render(QWidget* widget, const QColor& ground = Qt::magenta);

/// An empty picture of the size of \a widget for a test to paint itself what it expects.
QImage canvas(const QWidget* widget, const QColor& ground = Qt::magenta);
QImage canvas(const QSize& size, const QColor& ground = Qt::magenta);

/// Empty when both pictures have the same size and pixels; else what differs first. Both are kept
/// beside the test's program for a look at them.
QString difference(const QImage& actual, const QImage& expected);

/// A style record with one entry of \a field and \a font.
WidgetStyle styleOf(Style::Field field, const QFont& font);

/// A font of the tests: sized in pixels, so that it is the same on every screen.
QFont testFont(int pixelSize, bool bold = false);

/// The content of a file; a null array when it cannot be read.
QByteArray contentOf(const QString& path);

/// Collects Qt's messages while it lives.
class Messages
{
public:
    Messages();
    ~Messages();

    QStringList debugs() const;
    QStringList warnings() const;
    void clear();

private:
    static void receive(QtMsgType type, const QString& text);
    static Messages* s_current;

    QStringList m_debugs;
    QStringList m_warnings;
};

/// A folder that is removed, with what is in it, at the end of its life.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();

    QString path() const;
    QString write(const QString& name, const QByteArray& content) const;

private:
    QString m_path;
};

/// Counts the events of one type that a widget gets.
class EventCounter : public QObject
{
    Q_OBJECT

public:
    EventCounter(QObject* watched, QEvent::Type type);

    int count() const;
    void clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QEvent::Type m_type;
    int m_count;
};

/// Whether \a action leads to a repaint of \a widget, which must be on screen.
template <typename Action>
bool repaints(QWidget* widget, Action action)
{
    EventCounter paints(widget, QEvent::Paint);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    paints.clear();
    action();
    for (int i = 0; i < 50 && paints.count() == 0; ++i)
        QTest::qWait(1);
    return paints.count() > 0;
}

} // namespace testing

#define CWIDGET_COMPARE_IMAGES(actual, expected)                                                   \
    do {                                                                                           \
        const QString message = testing::difference(actual, expected);                             \
        QVERIFY2(message.isEmpty(), qPrintable(message));                                          \
    } while (false)

#endif
