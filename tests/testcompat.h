#ifndef CWIDGET_TESTS_TESTCOMPAT_H
#define CWIDGET_TESTS_TESTCOMPAT_H

// What differs between Qt 4.8, 5 and 6 in tests. No other test asks for the version of Qt.

#include <QApplication>
#include <QFontMetrics>
#include <QPixmap>
#include <QWheelEvent>
#include <QtTest>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QGuiApplication>
#include <QScreen>
#else
#include <QDesktopWidget>
#endif

namespace testcompat
{

typedef void (*MessageReceiver)(QtMsgType type, const QString& text);

inline MessageReceiver& messageReceiver()
{
    static MessageReceiver receiver = nullptr;
    return receiver;
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
inline void handleMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (messageReceiver())
        messageReceiver()(type, text);
}
#else
inline void handleMessage(QtMsgType type, const char* text)
{
    if (messageReceiver())
        messageReceiver()(type, QString::fromLocal8Bit(text));
}
#endif

/// Sends all of Qt's messages to \a receiver; null gives them back to whom they went before.
inline void receiveMessages(MessageReceiver receiver)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    static QtMessageHandler previous = nullptr;
    if (receiver && !messageReceiver())
        previous = qInstallMessageHandler(handleMessage);
    else if (!receiver && messageReceiver())
        qInstallMessageHandler(previous);
#else
    static QtMsgHandler previous = nullptr;
    if (receiver && !messageReceiver())
        previous = qInstallMsgHandler(handleMessage);
    else if (!receiver && messageReceiver())
        qInstallMsgHandler(previous);
#endif
    messageReceiver() = receiver;
}

/// Waits until \a window is on screen.
inline bool waitForWindow(QWidget* window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QTest::qWaitForWindowExposed(window);
#else
    return QTest::qWaitForWindowShown(window);
#endif
}

/// The advance of \a text in pixels.
inline int textWidth(const QFontMetrics& metrics, const QString& text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// The advance of the single character \a ch in pixels.
inline int charWidth(const QFontMetrics& metrics, QChar ch)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(ch);
#else
    return metrics.width(ch);
#endif
}

/// All widgets there are but the desktop, which Qt 4 counts among them.
inline QWidgetList allWidgets()
{
    QWidgetList widgets = QApplication::allWidgets();
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    for (int i = static_cast<int>(widgets.size()) - 1; i >= 0; --i) {
        if (widgets.at(i)->windowType() == Qt::Desktop)
            widgets.removeAt(i);
    }
#endif
    return widgets;
}

/// By how much a channel of a colour may differ between two pictures. Qt 4 on X11 rounds colours
/// that have a share of transparency differently than the raster engine does.
inline int colorTolerance()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return 1;
#else
    return 0;
#endif
}

/// Whether a window that is placed beyond the edge of the screen is moved onto it.
inline bool movesWindowsOntoTheScreen()
{
    return QT_VERSION < QT_VERSION_CHECK(5, 0, 0);
}

/// Whether the row of a combo box may change inside the signal of such a change. Qt 4's own box
/// then goes on with an index that is not valid any more.
inline bool mayNestRowChanges()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0);
}

/// How long a process that could not be started may remain as a child, in milliseconds.
inline int reapingTime()
{
    return QT_VERSION < QT_VERSION_CHECK(5, 0, 0) ? 1000 : 0;
}

/// The area of the primary screen.
inline QRect screenGeometry()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QGuiApplication::primaryScreen()->geometry();
#else
    return QApplication::desktop()->screenGeometry();
#endif
}

/// Makes \a ratio pixels of \a image one pixel of what is painted on it. Qt 4 knows only 1.
inline void setPixelRatio(QImage* image, qreal ratio)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    image->setDevicePixelRatio(ratio);
#else
    Q_UNUSED(image);
    Q_UNUSED(ratio);
#endif
}

/// Turns the mouse wheel over the middle of \a widget by \a delta eighths of a degree, positive
/// away from the user.
inline void turnWheel(QWidget* widget, int delta)
{
    const QPoint point = widget->rect().center();
    const QPoint global = widget->mapToGlobal(point);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent event(point, global, QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
#else
    QWheelEvent event(point, global, delta, Qt::NoButton, Qt::NoModifier);
#endif
    QApplication::sendEvent(widget, &event);
}

/// What is on the screen, all windows included.
inline QImage grabScreen()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
#else
    return QPixmap::grabWindow(QApplication::desktop()->winId()).toImage();
#endif
}

/// What is on the screen of \a window.
inline QImage grabWindow(QWidget* window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QGuiApplication::primaryScreen()->grabWindow(window->winId()).toImage();
#else
    return QPixmap::grabWindow(window->winId()).toImage();
#endif
}

} // namespace testcompat

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)

/// Lets the event loop run until \a condition holds, for five seconds at most.
#define CWIDGET_WAIT_UNTIL(condition)                                                              \
    for (int waited = 0; waited < 500 && !(condition); ++waited)                                   \
    QTest::qWait(10)

#define QTRY_VERIFY(condition)                                                                     \
    do {                                                                                           \
        CWIDGET_WAIT_UNTIL(condition);                                                             \
        QVERIFY(condition);                                                                        \
    } while (false)

#define QTRY_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        CWIDGET_WAIT_UNTIL((actual) == (expected));                                                \
        QCOMPARE(actual, expected);                                                                \
    } while (false)

#endif

/// Skips the running test, and says why.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define CWIDGET_SKIP(reason) QSKIP(reason)
#else
#define CWIDGET_SKIP(reason) QSKIP(reason, SkipAll)
#endif

#endif
