#include "hotplug/hotplugwatcher.h"

#include "hotplug/fakesystem.h"
#include "hotplug/hotplugtesting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

using testing::hasChildProcesses;
using testing::registry;
using testing::setAll;

namespace
{

/// The descriptors that this Qt loses when a program cannot be started: 1 with some of Qt 6.
int lostByAFailedStart()
{
    const int before = testing::openDescriptors();
    QProcess process;
    process.start(QLatin1String("/nowhere/to/be/found"), QStringList());
    process.waitForFinished();
    process.close();
    return testing::openDescriptors() - before;
}

} // namespace

class tst_hotplugwatcher_inventory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void toolIsCalledForAListingInFull();
    void listings_data();
    void listings();
    void hangingTool_data();
    void hangingTool();
    void withoutTool_data();
    void withoutTool();
    void withoutGrep();
    void oneInventoryAfterTheOther();
    void constructionTakesTheInventory();
    void realTool();
};

void tst_hotplugwatcher_inventory::initTestCase()
{
    if (!testing::FakeSystem::separate())
        CWIDGET_SKIP("the inventory is not tested: that needs root, to mount a listing tool");
}

void tst_hotplugwatcher_inventory::toolIsCalledForAListingInFull()
{
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    const testing::TemporaryFolder notes;
    const QString path = notes.write(QLatin1String("calls"), QByteArray());
    system.writeLister("echo \"$0 $# $*\" >> " + path.toLocal8Bit());
    CHotplugWatcher::detectDevice();
    QCOMPARE(testing::contentOf(path), QByteArray("/usr/bin/lsusb 1 -v\n").repeated(3));
}

void tst_hotplugwatcher_inventory::listings_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("registry");
    // clang-format off
    const struct { const char* name; const char* script; const char* registry; } rows[] = {
        {"keyboard only",         "echo '  bInterfaceProtocol  1 Keyboard'",          "k"},
        {"mouse only",            "echo '  bInterfaceProtocol  2 Mouse'",             "m"},
        {"storage only",          "echo '  bInterfaceClass     8 Mass Storage'",      "s"},
        {"all",                   "printf 'Keyboard\\nMouse\\nMass Storage\\n'",      "kms"},
        {"all in one line",       "echo Storage, Mouse and Keyboard",                 "kms"},
        {"none",                  "printf 'Hub\\nAudio\\n'",                          ""},
        {"nothing",               ":",                                                ""},
        {"fails with output",     "echo Mouse; exit 1",                               "m"},
        {"grep minds the case",   "printf 'keyboard\\nMOUSE\\nstorage\\n'",           ""},
        {"no newline",            "printf Keyboard",                                  "k"},
        {"NUL after the word",    "printf 'Mouse\\000x\\n'",                          ""}, // grep says 'binary file'
        {"word within a word",    "echo MyKeyboards",                                 "k"},
        {"complaints",            "yes Keyboard | head -c 1000000 >&2; echo Mouse",   "m"},
        {"megabytes of it",       "yes 'a Keyboard' | head -c 8000000",               "k"},
        {"megabytes around it",   "yes nothing | head -c 4000000; echo Mouse; yes nothing | head -c 4000000", "m"},
        {"one line of megabytes", "yes Storage | head -c 400000 | while read -r w; do printf %s \"$w\"; done", "s"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name)
            << QByteArray(rows[i].script) << QString::fromLatin1(rows[i].registry);
}

void tst_hotplugwatcher_inventory::listings()
{
    QFETCH(QByteArray, script);
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    system.writeLister(script);
    const int before = testing::openDescriptors();
    testing::Messages messages;
    const bool starts[] = {true, false};
    for (int i = 0; i < 2; ++i) {
        setAll(starts[i]);
        CHotplugWatcher::detectDevice();
        QTEST(registry(), "registry");
    }
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher_inventory::hangingTool_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("silent") << QByteArray("exec sleep 1000");
    QTest::newRow("silent child") << QByteArray("sleep 5");
    QTest::newRow("after output") << QByteArray("echo Keyboard; exec sleep 1000");
    QTest::newRow("reads") << QByteArray("read -r line; echo Keyboard");
    QTest::newRow("cannot be asked to end") << QByteArray("trap '' TERM HUP PIPE; exec sleep 1000");
    QTest::newRow("busy") << QByteArray("while :; do :; done");
    QTest::newRow("endless") << QByteArray("exec yes nothing");
}

void tst_hotplugwatcher_inventory::hangingTool()
{
    QFETCH(QByteArray, script);
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    system.writeLister(script);
    const int before = testing::openDescriptors();
    testing::Messages messages;
    setAll(true);
    QElapsedTimer timer;
    timer.start();
    CHotplugWatcher::detectDevice();
    QVERIFY(timer.elapsed() >= 2900);  // three passes of a second
    QVERIFY(timer.elapsed() < 100000); // and not what the tool would take
    QCOMPARE(registry(), QString());
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher_inventory::withoutTool_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("looksLikeIt");
    QTest::newRow("none") << "none" << false;
    QTest::newRow("not executable") << "not executable" << false;
    QTest::newRow("no program") << "no program" << true;
    QTest::newRow("folder") << "folder" << false;
}

void tst_hotplugwatcher_inventory::withoutTool()
{
    QFETCH(QString, kind);
    QFETCH(bool, looksLikeIt);
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    const QString path = QLatin1String("/usr/bin/lsusb"); // in the folder that is mounted there
    QVERIFY(!QFile::exists(path));
    if (kind == "folder") {
        QVERIFY(QDir().mkdir(path));
    } else if (kind == "no program") {
        system.writeLister(QByteArray());
        QFile tool(path);
        QVERIFY(tool.open(QIODevice::WriteOnly) && tool.write("\1\2") == 2);
    } else if (kind == "not executable") {
        system.writeLister("echo Keyboard");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    }
    testing::Messages messages;
    const int lost = looksLikeIt ? 3 * lostByAFailedStart() : 0;
    const int before = testing::openDescriptors();
    setAll(true);
    CHotplugWatcher::detectDevice();
    QCOMPARE(registry(), QString());
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before + lost);
    QCOMPARE(messages.warnings(), QStringList());
    QDir().rmdir(path);
}

void tst_hotplugwatcher_inventory::withoutGrep()
{
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    system.writeLister("yes Keyboard");
    QVERIFY(QFile::exists(QLatin1String("/usr/bin/lsusb")));
    const QByteArray path = qgetenv("PATH");
    const testing::TemporaryFolder nothing;
    qputenv("PATH", nothing.path().toLocal8Bit());
    testing::Messages messages;
    const int lost = 3 * lostByAFailedStart();
    const int before = testing::openDescriptors();
    setAll(true);
    CHotplugWatcher::detectDevice();
    qputenv("PATH", path);
    QCOMPARE(registry(), QString());
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before + lost);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher_inventory::oneInventoryAfterTheOther()
{
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    testing::Messages messages;
    const int before = testing::openDescriptors();
    for (int i = 0; i < 30; ++i) {
        system.writeLister(i % 2 ? "echo Keyboard" : "echo Mouse; echo Storage");
        CHotplugWatcher::detectDevice();
        QCOMPARE(registry(), QString::fromLatin1(i % 2 ? "k" : "ms"));
    }
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher_inventory::constructionTakesTheInventory()
{
    const testing::FakeSystem system;
    QVERIFY(system.isMounted());
    system.writeLister("echo Keyboard; echo Storage");
    testing::Messages messages;
    setAll(false);
    {
        CHotplugWatcher watcher;
        QCOMPARE(registry(), QString::fromLatin1("ks"));
        QVERIFY(watcher.isRunning());
    }
    QCOMPARE(registry(), QString::fromLatin1("ks")); // also afterwards
    QVERIFY(!hasChildProcesses());
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_hotplugwatcher_inventory::realTool()
{
    if (!QFile::exists(QLatin1String("/usr/bin/lsusb")))
        CWIDGET_SKIP("the real listing tool is not tested: /usr/bin/lsusb is not installed");
    QProcess tool;
    tool.start(QLatin1String("/usr/bin/lsusb"), QStringList(QLatin1String("-v")));
    QVERIFY(tool.waitForFinished());
    const QByteArray listing = tool.readAllStandardOutput();
    testing::Messages messages;
    const int before = testing::openDescriptors();
    const bool starts[] = {true, false};
    for (int i = 0; i < 2; ++i) {
        setAll(starts[i]);
        CHotplugWatcher::detectDevice();
        QCOMPARE(registry(), QString::fromLatin1(listing.contains("Keyboard") ? "k" : "") +
                                 QLatin1String(listing.contains("Mouse") ? "m" : "") +
                                 QLatin1String(listing.contains("Storage") ? "s" : ""));
    }
    QVERIFY(!hasChildProcesses());
    QCOMPARE(testing::openDescriptors(), before);
    QCOMPARE(messages.warnings(), QStringList());
}

QTEST_MAIN(tst_hotplugwatcher_inventory)
#include "tst_hotplugwatcher_inventory.moc"
