#include "hotplug/devicewatcher_p.h"
#include "hotplug/hotplugwatcher.h"

#include "hotplug/hotplugtesting.h"
#include "support/keypads.h"
#include "support/rows.h"
#include "widgets/lineedit.h"

#include <QFile>
#include <QTimer>
#include <QUuid>

#include <cerrno>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

// A device that every kernel has and nothing reacts to; what is said of it is made up below.
const char ueventFile[] = "/sys/class/mem/null/uevent";
const char header[] = "@/devices/virtual/mem/null";

/// Makes the kernel notify of the null device. Others may do the same at any time, so that each
/// notification of these tests has a mark of its own.
class NullDevice
{
public:
    NullDevice() : m_file(open(ueventFile, O_WRONLY | O_CLOEXEC))
    {
    }

    ~NullDevice()
    {
        if (m_file != -1)
            close(m_file);
    }

    bool notify(const QByteArray& action, const QString& mark = QString(),
                const QByteArray& fields = QByteArray())
    {
        QByteArray line = action;
        if (!mark.isEmpty())
            line += ' ' + mark.toLatin1();
        if (!fields.isEmpty())
            line += ' ' + fields;
        return write(m_file, line.constData(), static_cast<size_t>(line.size())) == line.size();
    }

private:
    int m_file;
};

QString newMark()
{
    return QUuid::createUuid().toString().mid(1, 36);
}

/// What of a log bears \a mark.
QStringList marked(const testing::SignalLog& log, const QString& mark)
{
    return log.entries.filter(mark);
}

/// A number that the system keeps about the notification socket of this process: the receive queue
/// in bytes, or the notifications that were dropped.
enum SocketColumn {
    QueueColumn = 4,
    DropsColumn = 8
};

int socketNumber(SocketColumn column)
{
    const QList<QByteArray> lines = testing::contentOf("/proc/net/netlink").split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QList<QByteArray> words = lines.at(i).simplified().split(' ');
        if (words.size() > DropsColumn && words.at(1) == "15" &&
            words.at(2).toInt() == static_cast<int>(getpid()))
            return words.at(column).toInt();
    }
    return -1;
}

/// Counts the notifications with a mark, and how often the event loop had time for something else
/// before the last one of a number.
class StormCounter : public QObject
{
    Q_OBJECT

public:
    StormCounter(QDeviceWatcher* watcher, const QString& mark)
        : count(0), breaths(0), m_mark(mark), m_last(-1)
    {
        connect(watcher, SIGNAL(deviceChanged(QString)), SLOT(changed(QString)));
        connect(&m_timer, SIGNAL(timeout()), SLOT(breathe()));
        m_timer.start(0);
    }

    int count;
    int breaths; // between the first notification and the last one
    bool inOrder() const
    {
        return m_last != -2;
    }

public Q_SLOTS:
    void changed(const QString& dev)
    {
        const int at = dev.indexOf(m_mark);
        if (at < 0)
            return;
        ++count;
        const int number = dev.mid(dev.indexOf(QLatin1String("_N=")) + 3, 6).toInt();
        m_last = m_last != -2 && number > m_last ? number : -2;
    }

    void breathe()
    {
        if (count > 0)
            ++breaths;
    }

private:
    QString m_mark;
    QTimer m_timer;
    int m_last;
};

/// Sends \a number notifications while nobody reads; true when all were accepted.
bool storm(NullDevice* device, const QString& mark, int number)
{
    for (int i = 0; i < number; ++i) {
        const QByteArray field = "N=" + QByteArray::number(100000 + i);
        if (!device->notify("change", mark, field))
            return false;
    }
    return true;
}

/// Notes what the registry says about the keyboard when a notification with a mark comes.
class KeyboardReader : public QObject
{
    Q_OBJECT

public:
    KeyboardReader(QDeviceWatcher* watcher, const QString& mark) : m_mark(mark)
    {
        connect(watcher, SIGNAL(deviceAdded(QString)), SLOT(read(QString)));
        connect(watcher, SIGNAL(deviceRemoved(QString)), SLOT(read(QString)));
        connect(watcher, SIGNAL(deviceChanged(QString)), SLOT(read(QString)));
    }

    QList<bool> seen;

public Q_SLOTS:
    void read(const QString& dev)
    {
        if (dev.contains(m_mark))
            seen.append(CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceKeyboard));
    }

private:
    QString m_mark;
};

/// Notes in \a after whether the registry, which had a keyboard or not \a before, has one once the
/// kernel has told of \a action and \a fields; false when that could not be tried. Tries again when
/// another test plugs a keyboard at that very moment.
bool keyboardAfter(QDeviceWatcher* source, const char* action, const char* fields, bool before,
                   bool* after)
{
    NullDevice device;
    for (int attempt = 0; attempt < 20; ++attempt) {
        const QString mark = newMark();
        testing::SignalLog log(source);
        KeyboardReader reader(source, mark);
        CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, before);
        if (!device.notify(action, mark, fields) ||
            !testing::waitUntil([&] { return !reader.seen.isEmpty(); }))
            return false;
        *after = reader.seen.first();
        const QStringList keyboards =
            log.entries.filter(QLatin1String("keyboard"), Qt::CaseInsensitive);
        if (keyboards.size() == keyboards.filter(mark).size())
            return true;
    }
    return false;
}

/// Plugs a keyboard in, or out, and touches a line edit afterwards; how many keypads opened, or -1
/// when it could not be tried. Tries again when another test does the opposite at that very moment.
int keyPadsOfATouch(CLineEdit* edit, QDeviceWatcher* source, bool plugged)
{
    NullDevice device;
    for (int attempt = 0; attempt < 20; ++attempt) {
        const QString mark = newMark();
        KeyboardReader reader(source, mark);
        if (!device.notify(plugged ? "add" : "remove", mark, "SUBSYSTEM=input NAME=UsbKeyboard") ||
            !testing::waitUntil([&] { return !reader.seen.isEmpty(); }))
            return -1;
        if (CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceKeyboard) != plugged)
            continue;
        testing::KeyPadUser user([](CSoftKeyPad* dialog) {
            testing::touch(testing::keyOf(dialog, Qt::Key_7));
            testing::touch(testing::keyOf(dialog, Key_Apply));
        });
        testing::touch(edit);
        return user.opened();
    }
    return -1;
}

} // namespace

class tst_kernel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyAction_data();
    void everyAction();
    void markedTextIsTheWholeNotification();
    void eventsFollow();
    void nothingAfterStop();
    void stormWhileBlocked();
    void stormBeyondTheBuffer();
    void keyboardFromKernelToRegistry();
    void othersDoNotReachTheRegistry();
    void lineEditOpensItsKeypadWithoutAKeyboard();
};

void tst_kernel::initTestCase()
{
    const QString mark = newMark();
    NullDevice device;
    QDeviceWatcher watcher;
    testing::SignalLog log(&watcher);
    watcher.start();
    if (!device.notify("change", mark))
        CWIDGET_SKIP("the kernel is not tested: that needs root, to write to the uevent file of a "
                     "device");
    if (!testing::waitUntil([&] { return !marked(log, mark).isEmpty(); }))
        CWIDGET_SKIP("the kernel is not tested: it does not notify inside of this container");
}

void tst_kernel::everyAction_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("signal");
    QTest::newRow("add") << "add"
                         << "added:";
    QTest::newRow("remove") << "remove"
                            << "removed:";
    QTest::newRow("change") << "change"
                            << "changed:";
    QTest::newRow("move") << "move"
                          << "";
    QTest::newRow("online") << "online"
                            << "";
    QTest::newRow("offline") << "offline"
                             << "";
    QTest::newRow("bind") << "bind"
                          << "";
    QTest::newRow("unbind") << "unbind"
                            << "";
}

void tst_kernel::everyAction()
{
    QFETCH(QString, action);
    QFETCH(QString, signal);
    QDeviceWatcher watcher;
    testing::SignalLog log(&watcher);
    watcher.start();
    NullDevice device;
    const QString mark = newMark();
    const QString last = newMark();
    QVERIFY(device.notify(action.toLatin1(), mark));
    QVERIFY(device.notify("change", last)); // when this is there, the other one had its chance
    QVERIFY(testing::waitUntil([&] { return !marked(log, last).isEmpty(); }));
    const QStringList entries = marked(log, mark);
    QCOMPARE(entries.size(), signal.isEmpty() ? 0 : 1);
    if (!signal.isEmpty())
        QVERIFY2(entries.at(0).startsWith(signal + action + QLatin1String(header)),
                 qPrintable(entries.at(0)));
}

void tst_kernel::markedTextIsTheWholeNotification()
{
    QDeviceWatcher watcher;
    testing::SignalLog log(&watcher);
    watcher.start();
    NullDevice device;
    const QString mark = newMark();
    QVERIFY(device.notify("add", mark, "SUBSYSTEM=test NAME=Thing"));
    QVERIFY(testing::waitUntil([&] { return !marked(log, mark).isEmpty(); }));
    const QString text = marked(log, mark).at(0);
    QVERIFY2(text.startsWith("added:add@/devices/virtual/mem/nullACTION=add"
                             "DEVPATH=/devices/virtual/mem/nullSUBSYSTEM=memSYNTH_UUID=" +
                             mark + "SYNTH_ARG_SUBSYSTEM=testSYNTH_ARG_NAME=Thing"),
             qPrintable(text));
    QVERIFY2(text.contains(QLatin1String("DEVNAME=null")), qPrintable(text));
    QVERIFY(!text.contains(QChar(0)));
    QVERIFY(!text.contains(QLatin1Char('\n')));
}

void tst_kernel::eventsFollow()
{
    QDeviceWatcher watcher;
    QStringList log;
    testing::Receiver first(QLatin1String("first"), &log);
    testing::Receiver second(QLatin1String("second"), &log);
    watcher.appendEventReceiver(&first);
    watcher.appendEventReceiver(&second);
    watcher.start();
    NullDevice device;
    const QString mark = newMark();
    QVERIFY(device.notify("remove", mark));
    QVERIFY(testing::waitUntil([&] { return log.filter(mark).size() == 2; }));
    QVERIFY(log.filter(mark).at(0).startsWith(QLatin1String("first:1:remove@")));
    QVERIFY(log.filter(mark).at(1).startsWith(QLatin1String("second:1:remove@")));
}

void tst_kernel::nothingAfterStop()
{
    QDeviceWatcher watcher;
    testing::SignalLog log(&watcher);
    watcher.start();
    NullDevice device;
    const QString before = newMark();
    const QString meanwhile = newMark();
    const QString after = newMark();
    QVERIFY(device.notify("change", before)); // not read any more
    watcher.stop();
    QVERIFY(device.notify("change", meanwhile));
    watcher.start();
    QVERIFY(device.notify("change", after));
    QVERIFY(testing::waitUntil([&] { return !marked(log, after).isEmpty(); }));
    QCOMPARE(marked(log, before).size() + marked(log, meanwhile).size(), 0);
    QCOMPARE(marked(log, after).size(), 1);
}

void tst_kernel::stormWhileBlocked()
{
    const int number = 20000;
    testing::Messages messages;
    QDeviceWatcher watcher;
    watcher.start();
    NullDevice device;
    const QString mark = newMark();
    StormCounter counter(&watcher, mark);
    QVERIFY(storm(&device, mark, number));
    usleep(1000000); // the application is busy, and so is its event loop
    const int queued = socketNumber(QueueColumn);
    QVERIFY(queued > 0);
    QVERIFY(queued <= 2 * 16777216);
    const int dropped = socketNumber(DropsColumn);
    QCOMPARE(counter.count, 0);

    testing::SignalLog log(&watcher);
    const QString live = newMark();
    QVERIFY(testing::waitUntil([&] { return counter.count >= number - dropped; }));
    QVERIFY(device.notify("change", live));
    QVERIFY(testing::waitUntil([&] { return !marked(log, live).isEmpty(); }));
    if (dropped == 0)
        QCOMPARE(counter.count, number); // each once
    QVERIFY(counter.inOrder());
    QVERIFY(counter.breaths > 100); // it was not served in one go
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_kernel::stormBeyondTheBuffer()
{
    testing::Messages messages;
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate socket(&watcher);
    QVERIFY(socket.start());
    const int descriptor = testing::ueventSockets().at(0);
    const int small = 4096;
    QCOMPARE(setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &small, sizeof small), 0);
    NullDevice device;
    const QString mark = newMark();
    StormCounter counter(&watcher, mark);
    testing::EventCounter activations(socket.findChild<QSocketNotifier*>(), QEvent::SockAct);
    QVERIFY(storm(&device, mark, 2000));
    QVERIFY(socketNumber(DropsColumn) > 0); // the kernel says so by a failed read

    const QString live = newMark();
    testing::SignalLog log(&watcher);
    // More is dropped until what the kernel kept has been read.
    QVERIFY(testing::waitUntil(
        [&] { return !marked(log, live).isEmpty() || !device.notify("change", live); }));
    QVERIFY(!marked(log, live).isEmpty());
    QVERIFY(counter.count > 0);
    QVERIFY(counter.count < 2000);
    QVERIFY(counter.inOrder()); // none twice
    activations.clear();
    QTest::qWait(100);
    QVERIFY(activations.count() < 1000); // others may notify, but nothing spins
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_kernel::keyboardFromKernelToRegistry()
{
    CHotplugWatcher watcher;
    const QString mark = newMark();
    KeyboardReader reader(watcher.findChild<QDeviceWatcher*>(), mark);
    NullDevice device;
    const QByteArray keyboard("SUBSYSTEM=input NAME=UsbKeyboard");
    const char* const actions[] = {"add", "remove", "add", "remove"};
    for (int i = 0; i < 4; ++i) {
        QVERIFY(device.notify(actions[i], mark, keyboard));
        QVERIFY(testing::waitUntil([&] { return reader.seen.size() == i + 1; }));
        QCOMPARE(reader.seen.at(i), i % 2 == 0);
    }
}

void tst_kernel::othersDoNotReachTheRegistry()
{
    CHotplugWatcher watcher;
    QDeviceWatcher* source = watcher.findChild<QDeviceWatcher*>();
    // clang-format off
    const struct { const char* action; const char* fields; bool before; } rows[] = {
        {"add",    "NAME=UsbKeyboard",                 false},
        {"add",    "SUBSYSTEM=input NAME=UsbMouse",    false},
        {"add",    "SUBSYSTEM=usb NAME=UsbKeyboard",   false},
        {"change", "SUBSYSTEM=input NAME=UsbKeyboard", false},
        {"remove", "NAME=UsbKeyboard",                 true},
        {"remove", "SUBSYSTEM=input NAME=UsbMouse",    true},
        {"change", "SUBSYSTEM=input NAME=UsbKeyboard", true},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        const testing::InRow inRow(i);
        bool after = !rows[i].before;
        QVERIFY(keyboardAfter(source, rows[i].action, rows[i].fields, rows[i].before, &after));
        QCOMPARE(after, rows[i].before);
    }
}

void tst_kernel::lineEditOpensItsKeypadWithoutAKeyboard()
{
    CHotplugWatcher watcher;
    QDeviceWatcher* source = watcher.findChild<QDeviceWatcher*>();
    CLineEdit edit;
    edit.setSKPActive(true);
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    for (int round = 1; round <= 2; ++round) {
        QCOMPARE(keyPadsOfATouch(&edit, source, true), 0);
        QCOMPARE(edited.count(), round - 1);
        QCOMPARE(keyPadsOfATouch(&edit, source, false), 1);
        QCOMPARE(edited.count(), round);
        QCOMPARE(edit.text(), QString(round, QLatin1Char('7')));
    }
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
}

QTEST_MAIN(tst_kernel)
#include "tst_kernel.moc"
