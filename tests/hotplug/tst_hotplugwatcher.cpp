#include "hotplug/hotplugwatcher.h"
#include "support/rows.h"

#include "hotplug/fakesystem.h"
#include "hotplug/hotplugtesting.h"
#include "style/qtcompat.h"

#include <unistd.h>

using testing::hasChildProcesses;
using testing::registry;
using testing::setAll;

namespace
{

/// Asks the thread it lives in to do something.
class Worker : public QObject
{
    Q_OBJECT

public:
    Worker() : worked(0)
    {
    }

    QAtomicInt worked;

public Q_SLOTS:
    void work()
    {
        worked.ref();
    }
};

/// Keeps the thread it lives in busy for a while.
class SlowWorker : public QObject
{
    Q_OBJECT

public:
    SlowWorker() : begun(0), done(0)
    {
    }

    QAtomicInt begun;
    QAtomicInt done;

public Q_SLOTS:
    void work()
    {
        begun.ref();
        usleep(200000);
        done.ref();
    }
};

/// Notes what the registry says at the moment of a signal.
class RegistryReader : public QObject
{
    Q_OBJECT

public:
    QStringList seen;

public Q_SLOTS:
    void read()
    {
        seen.append(registry());
    }
};

/// Constructs a watcher, plugs a keyboard in and destroys the watcher, all in a thread.
class WatchingThread : public QThread
{
public:
    void run() override
    {
        CHotplugWatcher watcher;
        seen = testing::ueventSockets().size() == 1;
        const testing::SignalLog log(watcher.findChild<QDeviceWatcher*>());
        testing::FakeKernel kernel(testing::ueventSockets().at(0));
        kernel.send(testing::datagram("add@/x|SUBSYSTEM=input|NAME=\"ACME Keyboard\"|"));
        seen = seen && testing::waitUntil([&] { return log.entries.size() == 1; });
    }

    bool seen;
};

/// What may have been done to a watcher before it is destroyed.
void prepareForDestruction(CHotplugWatcher* watcher, int state)
{
    switch (state) {
    case 0: // as constructed
        break;
    case 1:
        QCoreApplication::processEvents();
        break;
    case 2:
        watcher->quit();
        break;
    case 3:
        watcher->quit();
        watcher->wait();
        break;
    case 4:
        watcher->quit();
        watcher->wait();
        watcher->start();
        break;
    case 5:
        watcher->findChild<QDeviceWatcher*>()->stop();
        break;
    case 6:
        watcher->addDevice(QLatin1String("SUBSYSTEM=input keyboard"));
        watcher->findChild<QDeviceWatcher*>()->start();
        break;
    case 7:
        watcher->exit(3);
        QThread::yieldCurrentThread();
        break;
    }
}

} // namespace

class tst_hotplugwatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrivalAndRemoval_data();
    void arrivalAndRemoval();
    void changeIsNothing();
    void expressionsForMouseAndStorageMatchNothing_data();
    void expressionsForMouseAndStorageMatchNothing();
    void validExpressionsMatch();
    void threadIdlesFromConstructionOn();
    void threadRunsWhatIsMovedIntoIt();
    void watcherIsAChildAndRuns();
    void notificationsReachTheRegistry();
    void registryIsSetBeforeOthersAreTold();
    void watcherReceivesItsOwnEvents();
    void secondWatcherWarnsAndLives();
    void watcherInAnotherThread();
    void destructionInEveryState();
    void destructionByTheParent();
    void destructionWaitsForTheThread();
};

void tst_hotplugwatcher::arrivalAndRemoval_data()
{
    QTest::addColumn<QString>("dev");
    QTest::addColumn<bool>("keyboard");
    // clang-format off
    const struct { const char* name; const char* dev; bool keyboard; } rows[] = {
        {"keyboard",               "add@/xSUBSYSTEM=inputNAME=\"USB Keyboard\"", true},
        {"lower case",             "add@/xSUBSYSTEM=inputNAME=\"usb keyboard\"", true},
        {"upper case",             "add@/xSUBSYSTEM=inputNAME=\"KEYBOARD\"",     true},
        {"subsystem in any case",  "add@/xsubsystem=INPUTNAME=\"Keyboard\"",     true},
        {"word before subsystem",  "add@/my-keyboard/xSUBSYSTEM=input",          true},
        {"word within a word",     "SUBSYSTEM=inputMyKeyboards",                 true},
        {"nothing between",        "SUBSYSTEM=inputkeyboard",                    true},
        {"extra field",            "add@/xSUBSYSTEM=memSYNTH_ARG_SUBSYSTEM=inputSYNTH_ARG_NAME=Keyboard", true},
        {"keyboard and mouse",     "SUBSYSTEM=inputNAME=\"Keyboard Mouse\"",     true},
        {"longer subsystem",       "SUBSYSTEM=input_idKeyboard",                 true},
        {"mouse",                  "add@/xSUBSYSTEM=inputNAME=\"USB Mouse\"",    false},
        {"mouse, literally",       "add@/xSUBSYSTEM=input*NAME=*Mouse",          false},
        {"mouse, lower case",      "add@/xSUBSYSTEM=inputNAME=\"usb mouse\"",    false},
        {"storage",                "add@/xSUBSYSTEM=inputNAME=\"USB Storage\"",  false},
        {"storage, literally",     "add@/xSUBSYSTEM=input*NAME=*Storage",        false},
        {"other input device",     "add@/xSUBSYSTEM=inputNAME=\"Power Button\"", false},
        {"keyboard of usb",        "add@/xSUBSYSTEM=usbNAME=\"USB Keyboard\"",   false},
        {"no subsystem",           "add@/xNAME=\"USB Keyboard\"",                false},
        {"broken subsystem",       "SUBSYSTEM=inpu tKeyboard",                   false},
        {"storage of block",       "add@/xSUBSYSTEM=blockNAME=\"USB Storage\"",  false},
        {"mouse of hid",           "add@/xSUBSYSTEM=hidNAME=\"USB Mouse\"",      false},
        {"empty",                  "",                                           false},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << QString::fromLatin1(rows[i].dev) << rows[i].keyboard;
}

void tst_hotplugwatcher::arrivalAndRemoval()
{
    QFETCH(QString, dev);
    QFETCH(bool, keyboard);
    CHotplugWatcher watcher;
    testing::Messages messages;
    setAll(false);
    watcher.addDevice(dev);
    QCOMPARE(registry(), QString::fromLatin1(keyboard ? "k" : ""));
    watcher.removeDevice(dev);
    QCOMPARE(registry(), QString());
    setAll(true);
    watcher.removeDevice(dev);
    QCOMPARE(registry(), QString::fromLatin1(keyboard ? "ms" : "kms"));
    watcher.addDevice(dev);
    QCOMPARE(registry(), QString::fromLatin1("kms"));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher::changeIsNothing()
{
    CHotplugWatcher watcher;
    const QString dev = QString::fromLatin1("change@/xSUBSYSTEM=inputNAME=\"USB Keyboard\"");
    setAll(false);
    watcher.changeDevice(dev);
    QCOMPARE(registry(), QString());
    setAll(true);
    watcher.changeDevice(dev);
    QCOMPARE(registry(), QString::fromLatin1("kms"));
}

void tst_hotplugwatcher::expressionsForMouseAndStorageMatchNothing_data()
{
    QTest::addColumn<QByteArray>("pattern");
    QTest::newRow("mouse") << QByteArray("*NAME=*Mouse");
    QTest::newRow("storage") << QByteArray("*NAME=*Storage");
}

void tst_hotplugwatcher::expressionsForMouseAndStorageMatchNothing()
{
    QFETCH(QByteArray, pattern);
    testing::Messages messages;
    const QString texts[] = {QLatin1String("NAME=\"USB Mouse Storage\""),
                             QLatin1String("NAME=Mouse NAME=Storage"),
                             QLatin1String(pattern.constData()), QString()};
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i) {
        const testing::InRow inRow(i);
        QVERIFY(!qtcompat::matches(texts[i], pattern.constData(), Qt::CaseSensitive));
        QVERIFY(!qtcompat::matches(texts[i], pattern.constData(), Qt::CaseInsensitive));
    }
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher::validExpressionsMatch()
{
    const QString text = QLatin1String("NAME=\"USB Mouse\"");
    QVERIFY(qtcompat::matches(text, "NAME=.*Mouse", Qt::CaseSensitive));
    QVERIFY(!qtcompat::matches(text, "NAME=.*mouse", Qt::CaseSensitive));
    QVERIFY(qtcompat::matches(text, "NAME=.*mouse", Qt::CaseInsensitive));
    QVERIFY(!qtcompat::matches(text, "NAME=.*Storage", Qt::CaseInsensitive));
}

void tst_hotplugwatcher::threadIdlesFromConstructionOn()
{
    CHotplugWatcher watcher;
    QVERIFY(watcher.isRunning());
    QVERIFY(!watcher.isFinished());
    QCOMPARE(watcher.priority(), QThread::InheritPriority);
    QCOMPARE(watcher.thread(), QThread::currentThread());
    QTest::qWait(20);
    QVERIFY(watcher.isRunning());
}

void tst_hotplugwatcher::threadRunsWhatIsMovedIntoIt()
{
    CHotplugWatcher watcher;
    Worker worker;
    worker.moveToThread(&watcher);
    QMetaObject::invokeMethod(&worker, "work", Qt::QueuedConnection);
    QVERIFY(testing::waitUntil([&] { return worker.worked.fetchAndAddOrdered(0) == 1; }));
}

void tst_hotplugwatcher::watcherIsAChildAndRuns()
{
    CHotplugWatcher watcher;
    const QList<QDeviceWatcher*> children = watcher.findChildren<QDeviceWatcher*>();
    QCOMPARE(children.size(), 1);
    QCOMPARE(children.at(0)->parent(), static_cast<QObject*>(&watcher));
    QCOMPARE(children.at(0)->thread(), QThread::currentThread());
    QVERIFY(children.at(0)->isRunning());
    QCOMPARE(testing::ueventSockets().size(), 1);
}

void tst_hotplugwatcher::notificationsReachTheRegistry()
{
    CHotplugWatcher watcher;
    testing::SignalLog log(watcher.findChild<QDeviceWatcher*>());
    testing::FakeKernel kernel(testing::ueventSockets().at(0));
    setAll(false);
    // clang-format off
    const struct { const char* bytes; const char* registry; } steps[] = {
        {"add@/a|ACTION=add|SUBSYSTEM=input|NAME=\"ACME USB Keyboard\"|",       "k"},
        {"change@/a|ACTION=change|SUBSYSTEM=input|NAME=\"ACME USB Keyboard\"|", "k"},
        {"remove@/b|ACTION=remove|SUBSYSTEM=usb|PRODUCT=keyboard|",             "k"},
        {"remove@/a|ACTION=remove|SUBSYSTEM=input|NAME=\"ACME USB Keyboard\"|", ""},
        {"add@/c|ACTION=add|SUBSYSTEM=input|NAME=\"ACME USB Mouse\"|",          ""},
        {"add@/d|ACTION=add|SUBSYSTEM=block|NAME=\"ACME USB Storage\"|",        ""},
        {"ADD@/a|ACTION=add|SUBSYSTEM=input|NAME=\"acme keyboard\"|",           "k"},
    };
    // clang-format on
    for (int i = 0; i < static_cast<int>(sizeof steps / sizeof steps[0]); ++i) {
        const testing::InRow inRow(i);
        QVERIFY(kernel.send(testing::datagram(steps[i].bytes)));
        QVERIFY(testing::waitUntil([&] { return log.entries.size() == i + 1; }));
        QCOMPARE(registry(), QString::fromLatin1(steps[i].registry));
    }
}

void tst_hotplugwatcher::registryIsSetBeforeOthersAreTold()
{
    CHotplugWatcher watcher;
    RegistryReader reader;
    connect(watcher.findChild<QDeviceWatcher*>(), SIGNAL(deviceAdded(QString)), &reader,
            SLOT(read()));
    testing::FakeKernel kernel(testing::ueventSockets().at(0));
    setAll(false);
    QVERIFY(kernel.send("add@/x SUBSYSTEM=input keyboard"));
    QVERIFY(testing::waitUntil([&] { return !reader.seen.isEmpty(); }));
    QCOMPARE(reader.seen, QStringList(QLatin1String("k")));
}

void tst_hotplugwatcher::watcherReceivesItsOwnEvents()
{
    CHotplugWatcher watcher;
    testing::EventCounter events(&watcher, QDeviceChangeEvent::registeredType());
    testing::FakeKernel kernel(testing::ueventSockets().at(0));
    QVERIFY(kernel.send("change@/x"));
    QVERIFY(testing::waitUntil([&] { return events.count() == 1; }));
    QVERIFY(kernel.send("remove@/x"));
    QVERIFY(testing::waitUntil([&] { return events.count() == 2; }));
}

void tst_hotplugwatcher::secondWatcherWarnsAndLives()
{
    CHotplugWatcher first;
    testing::Messages messages;
    {
        CHotplugWatcher second;
        QCOMPARE(messages.warnings(),
                 QStringList(QLatin1String("bind failed: Address already in use")));
        QVERIFY(second.isRunning());
        setAll(false);
        second.addDevice(QLatin1String("SUBSYSTEM=input Keyboard"));
        QCOMPARE(registry(), QString::fromLatin1("k"));
    }
    QCOMPARE(testing::ueventSockets().size(), 1);
    QCOMPARE(messages.warnings().size(), 1);
}

void tst_hotplugwatcher::watcherInAnotherThread()
{
    testing::Messages messages;
    setAll(false);
    WatchingThread thread;
    thread.start();
    thread.wait();
    QVERIFY(thread.seen);
    QVERIFY(CWidgetStyle::isDeviceAvailable(CWidgetStyle::DeviceKeyboard));
    QCOMPARE(testing::ueventSockets().size(), 0);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher::destructionInEveryState()
{
    // A thousand inventories take long: where it is possible, there is no listing tool meanwhile.
    QScopedPointer<testing::FakeSystem> system;
    if (testing::FakeSystem::separate())
        system.reset(new testing::FakeSystem);
    testing::Messages messages;
    const int before = testing::openDescriptors();
    for (int i = 0; i < 1000; ++i) {
        CHotplugWatcher watcher;
        prepareForDestruction(&watcher, i % 8);
    }
    QCOMPARE(testing::openDescriptors(), before);
    QVERIFY(!hasChildProcesses());
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher::destructionByTheParent()
{
    testing::Messages messages;
    QObject* parent = new QObject;
    QPointer<CHotplugWatcher> watcher(new CHotplugWatcher(parent));
    QCOMPARE(watcher->parent(), parent);
    QVERIFY(watcher->isRunning());
    delete parent;
    QVERIFY(!watcher);
    QCOMPARE(testing::ueventSockets().size(), 0);
    QVERIFY(!hasChildProcesses());
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher::destructionWaitsForTheThread()
{
    SlowWorker worker;
    CHotplugWatcher* watcher = new CHotplugWatcher;
    worker.moveToThread(watcher);
    QVERIFY(QMetaObject::invokeMethod(&worker, "work", Qt::QueuedConnection));
    QVERIFY(testing::waitUntil([&] { return worker.begun.fetchAndAddOrdered(0) == 1; }));
    delete watcher;
    QCOMPARE(worker.done.fetchAndAddOrdered(0), 1);
}

QTEST_MAIN(tst_hotplugwatcher)
#include "tst_hotplugwatcher.moc"
