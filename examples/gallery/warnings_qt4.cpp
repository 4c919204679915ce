#include "warnings.h"

#include <QtGlobal>

namespace
{

void (*warningReceiver)(const QString& text) = nullptr;
QtMsgHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const char* text)
{
    if (type != QtDebugMsg)
        warningReceiver(QString::fromLocal8Bit(text));
}

} // namespace

void receiveWarnings(void (*receiver)(const QString& text))
{
    warningReceiver = receiver;
    if (receiver)
        previousHandler = qInstallMsgHandler(handleMessage);
    else
        qInstallMsgHandler(previousHandler);
}
