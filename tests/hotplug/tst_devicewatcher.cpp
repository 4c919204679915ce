#include "hotplug/devicewatcher_p.h"

#include "hotplug/hotplugtesting.h"

using testing::Deleter;
using testing::Receiver;
using testing::SignalLog;

namespace
{

const char usbAdded[] = "add@/devices/xACTION=addSUBSYSTEM=usb";

/// Posts the notification that it gets once more while it is being told about it.
class Echo : public QObject
{
    Q_OBJECT

public:
    explicit Echo(QDeviceWatcherPrivate* target) : m_target(target), m_left(3)
    {
    }

public Q_SLOTS:
    void again(const QString& dev)
    {
        if (--m_left > 0)
            m_target->parseLine(dev.toLatin1());
    }

private:
    QDeviceWatcherPrivate* m_target;
    int m_left;
};

} // namespace

class tst_devicewatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsHaveOneRegisteredType();
    void eventsCarryActionAndDevice();
    void lineLeadsToSignalAndEvent_data();
    void lineLeadsToSignalAndEvent();
    void signalComesBeforeTheEvent();
    void watcherDestroyedByASlot();
    void watcherDestroyedWithEventUnderWay();
    void notificationsWithinNotifications();
    void emitFunctions();
    void actionInAnyCaseLeadsToSignalOnly_data();
    void actionInAnyCaseLeadsToSignalOnly();
    void failedSignalCallWarns();
};

void tst_devicewatcher::eventsHaveOneRegisteredType()
{
    const QEvent::Type type = QDeviceChangeEvent::registeredType();
    QVERIFY(type >= QEvent::User && type <= QEvent::MaxUser);
    QCOMPARE(QDeviceChangeEvent::registeredType(), type);
    QCOMPARE(QDeviceChangeEvent(QDeviceChangeEvent::Add, QString()).type(), type);
    QCOMPARE(QDeviceChangeEvent(QDeviceChangeEvent::Remove, QString()).type(), type);
    QVERIFY(QEvent::registerEventType(type) != type); // taken
}

void tst_devicewatcher::eventsCarryActionAndDevice()
{
    QCOMPARE(static_cast<int>(QDeviceChangeEvent::Add), 0);
    QCOMPARE(static_cast<int>(QDeviceChangeEvent::Remove), 1);
    QCOMPARE(static_cast<int>(QDeviceChangeEvent::Change), 2);
    const QDeviceChangeEvent event(QDeviceChangeEvent::Change, QString::fromLatin1("change@/x"));
    QCOMPARE(event.action(), QDeviceChangeEvent::Change);
    QCOMPARE(event.device(), QString::fromLatin1("change@/x"));
}

void tst_devicewatcher::lineLeadsToSignalAndEvent_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<int>("action");
    // clang-format off
    const struct { const char* name; const char* line; const char* signal; int action; } rows[] = {
        {"add",             usbAdded,              "added",   0},
        {"remove",          "remove@/devices/x",   "removed", 1},
        {"change",          "change@/devices/x",   "changed", 2},
        {"ADD",             "ADD@/devices/x",      "added",   0},
        {"Remove",          "Remove@/devices/x",   "removed", 1},
        {"cHANGE",          "cHANGE@/devices/x",   "changed", 2},
        {"nothing after",   "add@",                "added",   0},
        {"two at signs",    "remove@add@",         "removed", 1},
        {"high bytes",      "add@/\xE4\xFF",       "added",   0},
        {"move",            "move@/devices/x",     "",        -1},
        {"bind",            "bind@/devices/x",     "",        -1},
        {"unbind",          "unbind@/devices/x",   "",        -1},
        {"online",          "online@/devices/x",   "",        -1},
        {"offline",         "offline@/devices/x",  "",        -1},
        {"longer",          "added@/devices/x",    "",        -1},
        {"shorter",         "ad@/devices/x",       "",        -1},
        {"blank",           "add @/devices/x",     "",        -1},
        {"no at sign",      "add",                 "",        -1},
        {"only at sign",    "@",                   "",        -1},
        {"action later",    "@ACTION=add",         "",        -1},
        {"empty",           "",                    "",        -1},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name)
            << QByteArray(rows[i].line) << QString::fromLatin1(rows[i].signal) << rows[i].action;
}

void tst_devicewatcher::lineLeadsToSignalAndEvent()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, signal);
    QFETCH(int, action);
    const QString text = QString::fromLatin1(line.constData());
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    QStringList events;
    Receiver receiver(QLatin1String("r"), &events);
    parser.appendEventReceiver(&receiver);
    testing::Messages messages;

    parser.parseLine(line);
    QCOMPARE(log.entries, signal.isEmpty() ? QStringList() : QStringList(signal + ':' + text));
    QCOMPARE(events, QStringList()); // posted, not sent
    QCoreApplication::sendPostedEvents();
    QCOMPARE(events, action < 0
                         ? QStringList()
                         : QStringList(QString::fromLatin1("r:%1:%2").arg(action).arg(text)));
    QCOMPARE(log.entries.size(), signal.isEmpty() ? 0 : 1);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher::signalComesBeforeTheEvent()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    Receiver receiver(QLatin1String("r"), &log.entries);
    parser.appendEventReceiver(&receiver);
    parser.parseLine("remove@/a");
    parser.parseLine("add@/a");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.entries.join(QLatin1String(" ")),
             QString::fromLatin1("removed:remove@/a added:add@/a r:1:remove@/a r:0:add@/a"));
}

void tst_devicewatcher::watcherDestroyedByASlot()
{
    const char* const names[] = {SIGNAL(deviceAdded(QString)), SIGNAL(deviceRemoved(QString)),
                                 SIGNAL(deviceChanged(QString))};
    const char* const actions[] = {"add", "remove", "change"};
    for (int i = 0; i < 3; ++i) {
        QPointer<QDeviceWatcher> watcher(new QDeviceWatcher);
        QStringList log;
        Receiver receiver(QLatin1String("r"), &log);
        watcher->appendEventReceiver(&receiver);
        watcher->start();
        QCOMPARE(testing::ueventSockets().size(), 1);
        testing::FakeKernel kernel(testing::ueventSockets().at(0));
        Deleter deleter(watcher);
        connect(watcher, names[i], &deleter, SLOT(deleteIt()));
        QVERIFY(kernel.send(QByteArray(actions[i]) + "@/x"));
        QVERIFY(kernel.send(QByteArray(actions[i]) + "@/y"));
        QVERIFY(testing::waitUntil([&] { return !watcher; }));
        QCoreApplication::processEvents();
        QCOMPARE(log, QStringList()); // the receivers went with it
    }
}

void tst_devicewatcher::watcherDestroyedWithEventUnderWay()
{
    QStringList log;
    Receiver receiver(QLatin1String("r"), &log);
    {
        QDeviceWatcher watcher;
        QDeviceWatcherPrivate parser(&watcher);
        parser.appendEventReceiver(&receiver);
        parser.parseLine("change@/x");
    }
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log, QStringList(QLatin1String("r:2:change@/x")));
}

void tst_devicewatcher::notificationsWithinNotifications()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    Receiver receiver(QLatin1String("r"), &log.entries);
    Echo echo(&parser);
    connect(&watcher, SIGNAL(deviceAdded(QString)), &echo, SLOT(again(QString)));
    parser.appendEventReceiver(&receiver);
    parser.parseLine("add@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.entries.filter(QLatin1String("added:add@/x")).size(), 3);
    QCOMPARE(log.entries.filter(QLatin1String("r:0:add@/x")).size(), 3);
    QCOMPARE(log.entries.size(), 6);
}

void tst_devicewatcher::emitFunctions()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    parser.emitDeviceAdded(QLatin1String("a"));
    parser.emitDeviceRemoved(QLatin1String("b"));
    parser.emitDeviceChanged(QString());
    QCOMPARE(log.entries.join(QLatin1String(" ")),
             QString::fromLatin1("added:a removed:b changed:"));
}

void tst_devicewatcher::actionInAnyCaseLeadsToSignalOnly_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("signal");
    QTest::newRow("add") << "add"
                         << "added";
    QTest::newRow("Add") << "Add"
                         << "added";
    QTest::newRow("REMOVE") << "REMOVE"
                            << "removed";
    QTest::newRow("chAnge") << "chAnge"
                            << "changed";
    QTest::newRow("move") << "move"
                          << "";
    QTest::newRow("blank") << "add "
                           << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("null") << QString() << "";
}

void tst_devicewatcher::actionInAnyCaseLeadsToSignalOnly()
{
    QFETCH(QString, action);
    QFETCH(QString, signal);
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    Receiver receiver(QLatin1String("r"), &log.entries);
    parser.appendEventReceiver(&receiver);
    parser.emitDeviceAction(QLatin1String("remove@text"), action);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.entries, signal.isEmpty() ? QStringList() : QStringList(signal + ":remove@text"));
}

void tst_devicewatcher::failedSignalCallWarns()
{
    QDeviceWatcherPrivate parser(nullptr);
    QStringList events;
    Receiver receiver(QLatin1String("r"), &events);
    parser.appendEventReceiver(&receiver);
    testing::Messages messages;
    parser.emitDeviceAdded(QLatin1String("x"));
    parser.emitDeviceRemoved(QLatin1String("x"));
    parser.emitDeviceChanged(QLatin1String("x"));
    parser.parseLine("add@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(messages.warnings().join(QLatin1String("|")),
             QString::fromLatin1("invoke deviceAdded failed|invoke deviceRemoved failed|"
                                 "invoke deviceChanged failed|invoke deviceAdded failed"));
    QCOMPARE(events, QStringList(QLatin1String("r:0:add@/x"))); // ignored otherwise
}

QTEST_MAIN(tst_devicewatcher)
#include "tst_devicewatcher.moc"
