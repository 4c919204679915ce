#include "warnings.h"

#include <QtGlobal>

namespace
{

void (*warningReceiver)(const QString& text) = nullptr;
QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg)
        previousHandler(type, context, text);
    else if (type != QtDebugMsg && type != QtInfoMsg)
        warningReceiver(text);
}

} // namespace

void receiveWarnings(void (*receiver)(const QString& text))
{
    warningReceiver = receiver;
    if (receiver)
        previousHandler = qInstallMessageHandler(handleMessage);
    else
        qInstallMessageHandler(previousHandler);
}
