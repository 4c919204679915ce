#ifndef CWIDGET_TESTS_SUPPORT_XSERVER_H
#define CWIDGET_TESTS_SUPPORT_XSERVER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace testing
{

/// An X server of 1024 x 768 pixels and a window manager, both for this process alone, and the
/// environment that makes Qt use them. To be made before the application object; ends both.
class XServer
{
public:
    XServer();
    ~XServer();

    /// Empty when all is running; else what is missing.
    QString error() const;

private:
    pid_t m_server;
    pid_t m_manager;
    QString m_error;
};

/// Runs xdotool with \a arguments (real X events, no test events) and returns what it prints.
QString xdotool(const QStringList& arguments);
QString xdotool(const QString& arguments);

} // namespace testing

#endif
