#include "support/xserver.h"

#include <QProcess>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const int startTimeout = 30000; // ms

/// Starts a program whose standard output is \a output, or nowhere. There is no application object
/// yet, so QProcess cannot be used.
pid_t spawn(const char* const arguments[], int output)
{
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, 0);
    dup2(output < 0 ? nowhere : output, 1);
    dup2(nowhere, 2);
    execvp(arguments[0], const_cast<char* const*>(arguments));
    _exit(127);
}

void end(pid_t pid)
{
    if (pid <= 0)
        return;
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
}

/// The number of the display that the server writes when it is ready.
QByteArray readLine(int descriptor)
{
    QByteArray line;
    pollfd waiting = {descriptor, POLLIN, 0};
    while (!line.endsWith('\n') && poll(&waiting, 1, startTimeout) > 0) {
        char ch = 0;
        if (read(descriptor, &ch, 1) != 1)
            break;
        line.append(ch);
    }
    return line.trimmed();
}

} // namespace

namespace testing
{

XServer::XServer() : m_server(-1), m_manager(-1)
{
    int ends[2];
    if (pipe(ends) != 0) {
        m_error = QString::fromLatin1("no pipe");
        return;
    }
    const char* const server[] = {"Xvfb",        "-displayfd", "1",   "-screen", "0",
                                  "1024x768x24", "-nolisten",  "tcp", nullptr};
    m_server = spawn(server, ends[1]);
    close(ends[1]);
    const QByteArray display = readLine(ends[0]);
    close(ends[0]);
    if (display.isEmpty()) {
        m_error = QString::fromLatin1("Xvfb does not start; ./test.sh installs what is needed");
        return;
    }
    setenv("DISPLAY", (":" + display).constData(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("QT_XCB_GL_INTEGRATION", "none", 1); // widgets need none, and its drivers leak
    const char* const manager[] = {"openbox", "--sm-disable", nullptr};
    m_manager = spawn(manager, -1);
    usleep(200000);
    if (waitpid(m_manager, nullptr, WNOHANG) != 0) {
        m_manager = -1;
        m_error = QString::fromLatin1("openbox does not start; ./test.sh installs what is needed");
    }
}

XServer::~XServer()
{
    end(m_manager);
    end(m_server);
}

QString XServer::error() const
{
    return m_error;
}

QString xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QLatin1String("xdotool"), arguments);
    if (!process.waitForFinished(startTimeout))
        qWarning("xdotool does not run; ./test.sh installs what is needed");
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

QString xdotool(const QString& arguments)
{
    return xdotool(arguments.split(QLatin1Char(' ')));
}

} // namespace testing
