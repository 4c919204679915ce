#include "fuzzing.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace
{

/// What the library and Qt have to say about such inputs is known.
void dropMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    Q_UNUSED(context);
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::abort();
}

void send(QWidget* widget, QEvent::Type type, Qt::MouseButtons buttons)
{
    const QPoint middle = widget->rect().center();
    QMouseEvent event(type, middle, widget->mapToGlobal(middle), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Q_UNUSED(argc);
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;           // the other arguments are libFuzzer's
    new QApplication(count, *argv); // for as long as the process lives
    qInstallMessageHandler(dropMessage);
    return 0;
}

void fuzzing::require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::abort();
}

QString fuzzing::text(FuzzedDataProvider* data, size_t length)
{
    const std::string bytes = data->ConsumeRandomLengthString(length * 2);
    if (data->ConsumeBool())
        return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
    QString result;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2)
        result.append(QChar(static_cast<uchar>(bytes[i]), static_cast<uchar>(bytes[i + 1])));
    return result;
}

QImage fuzzing::render(QWidget* widget)
{
    QImage image(widget->size().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    widget->render(&image);
    return image;
}

void fuzzing::touch(QWidget* widget)
{
    send(widget, QEvent::MouseButtonPress, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, Qt::NoButton);
}
