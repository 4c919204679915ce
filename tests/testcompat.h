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
    static MessageReceiver receiver = 0;
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
    static QtMessageHandler previous = 0;
    if (receiver && !messageReceiver())
        previous = qInstallMessageHandler(handleMessage);
    else if (!receiver && messageReceiver())
        qInstallMessageHandler(previous);
#else
    static QtMsgHandler previous = 0;
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

/// The area of the primary screen.
inline QRect screenGeometry()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QGuiApplication::primaryScreen()->geometry();
#else
    return QApplication::desktop()->screenGeometry();
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

} // namespace testcompat

/// Skips the running test, and says why.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define CWIDGET_SKIP(reason) QSKIP(reason)
#else
#define CWIDGET_SKIP(reason) QSKIP(reason, SkipAll)
#endif

#endif
