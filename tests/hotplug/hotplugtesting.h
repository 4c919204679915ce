#ifndef CWIDGET_TESTS_HOTPLUG_HOTPLUGTESTING_H
#define CWIDGET_TESTS_HOTPLUG_HOTPLUGTESTING_H

#include "hotplug/devicewatcher.h"
#include "support/testing.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace testing
{

/// The descriptors of this process that are sockets for the kernel's device notifications.
QList<int> ueventSockets();

/// The number of descriptors that this process has open.
int openDescriptors();

/// The notification in \a text, where bars stand for the NUL bytes that end the fields.
QByteArray datagram(const char* text);

/// Notes all kinds of devices as attached or not.
void setAll(bool available);

/// What the registry says, a letter for each attached kind: of keyboard, mouse and storage.
QString registry();

bool hasChildProcesses();

/// Takes the place of the kernel at the other end of a running watcher's socket.
class FakeKernel
{
public:
    explicit FakeKernel(int watcherSocket);
    ~FakeKernel();

    bool send(const QByteArray& datagram);

private:
    int m_end;
};

/// Writes down what a watcher's signals say, in order: "added:", "removed:" or "changed:" and the
/// text.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(QDeviceWatcher* watcher);

    QStringList entries;

public Q_SLOTS:
    void added(const QString& dev);
    void removed(const QString& dev);
    void changed(const QString& dev);
};

/// Writes down the events that it gets: its name, the number of the action and the text. Several
/// may share a log.
class Receiver : public QObject
{
    Q_OBJECT

public:
    Receiver(const QString& name, QStringList* log);

    bool event(QEvent* event) override;

private:
    QString m_name;
    QStringList* m_log;
};

/// Deletes an object when a device is added.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QObject* victim) : m_victim(victim)
    {
    }

public Q_SLOTS:
    void deleteIt()
    {
        delete m_victim;
    }

private:
    QObject* m_victim;
};

/// Lets the event loop run until \a condition holds; false when it does not within ten seconds.
template <typename Condition>
bool waitUntil(Condition condition)
{
    for (int i = 0; i < 1000 && !condition(); ++i)
        QTest::qWait(i < 50 ? 1 : 10);
    return condition();
}

} // namespace testing

#endif
