#include "hotplug/uevent_p.h"

#include "hotplug/hotplugtesting.h"
#include "support/random.h"

#include <QBuffer>

using testing::Random;

namespace
{

const char keyboard[] =
    "@/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/0003:1D6B:0104.0001/input/input5|"
    "SUBSYSTEM=input|PRODUCT=3/1d6b/104/110|NAME=\"ACME USB Keyboard\"|"
    "PHYS=\"usb-0000:00:14.0-2/input0\"|UNIQ=\"\"|PROP=0|EV=120013|"
    "KEY=10000 7 ff9f207ac14057ff febeffdfffefffff fffffffffffffffe|MSC=10|LED=7|"
    "MODALIAS=input:b0003v1D6Bp0104e0110-e0,1,4,11,14,k71,72,73|SEQNUM=2451|";
const char mouse[] = "@/devices/pci0000:00/0000:00:14.0/usb1/1-3/1-3:1.0/0003:1D6B:0105.0002/input/"
                     "input6/mouse0|SUBSYSTEM=input|MAJOR=13|MINOR=32|DEVNAME=input/mouse0|"
                     "SEQNUM=2460|";
const char usb[] = "@/devices/pci0000:00/0000:00:14.0/usb1/1-2|SUBSYSTEM=usb|MAJOR=189|MINOR=4|"
                   "DEVNAME=bus/usb/001/005|DEVTYPE=usb_device|PRODUCT=1d6b/104/110|TYPE=0/0/0|"
                   "BUSNUM=001|DEVNUM=005|SEQNUM=2442|";
const char block[] = "@/devices/pci0000:00/0000:00:14.0/usb1/1-4/1-4:1.0/host2/target2:0:0/2:0:0:0/"
                     "block/sdb/sdb1|SUBSYSTEM=block|MAJOR=8|MINOR=17|DEVNAME=sdb1|"
                     "DEVTYPE=partition|DISKSEQ=12|PARTN=1|SEQNUM=2490|";
const char net[] = "@/devices/virtual/net/tap0|SUBSYSTEM=net|INTERFACE=tap0|IFINDEX=7|SEQNUM=2501|";
const char bare[] = "@/devices/x|";

struct DeviceRow {
    const char* name;
    const char* rest; // of the notification, after the action
};

const DeviceRow devices[] = {
    {"keyboard", keyboard},    {"mouse", mouse},      {"usb", usb},
    {"block", block},          {"net", net},          {"without fields", bare},
    {"no NUL", "@/devices/x"}, {"no path", "@|A=1|"}, {"two at signs", "@/a@b|ACTION=add@|"},
};

const char* const actions[] = {"add",    "remove",  "change", "move",
                               "online", "offline", "bind",   "unbind"};

QByteArray joined(const QByteArray& datagram)
{
    QBuffer buffer;
    return uevent::joinedFields(datagram, &buffer);
}

/// The same, found in another way: everything but what separates the fields, and the white space
/// beside it.
QByteArray joinedByHand(const QByteArray& datagram)
{
    const QByteArray white = QByteArray::fromRawData(" \t\n\v\f\r", 6);
    QByteArray result;
    QByteArray pending; // white space that is kept only when something of the field follows
    bool inField = false;
    for (int i = 0; i < datagram.size(); ++i) {
        const char byte = datagram.at(i);
        if (byte == '\0' || byte == '\n') {
            inField = false;
            pending.clear();
        } else if (white.contains(byte)) {
            pending += byte;
        } else {
            result += (inField ? pending : QByteArray()) + byte;
            inField = true;
            pending.clear();
        }
    }
    return result;
}

void mutate(QByteArray* bytes, Random* random)
{
    for (int changes = 1 + random->below(8); changes > 0; --changes) {
        const int at = random->below(static_cast<int>(bytes->size()) + 1);
        switch (random->below(5)) {
        case 0:
            bytes->insert(at, static_cast<char>(random->below(256)));
            break;
        case 1:
            bytes->remove(at, 1 + random->below(40));
            break;
        case 2:
            bytes->insert(at, QByteArray(random->below(40), "\0\n @="[random->below(5)]));
            break;
        case 3:
            bytes->truncate(at);
            break;
        default:
            if (at < bytes->size())
                (*bytes)[at] = static_cast<char>(random->below(256));
        }
    }
}

} // namespace

class tst_uevent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void realNotifications_data();
    void realNotifications();
    void fieldsAreTrimmedAndJoined_data();
    void fieldsAreTrimmedAndJoined();
    void actionStandsBeforeTheFirstAtSign_data();
    void actionStandsBeforeTheFirstAtSign();
    void deviceIsAllOfTheLine();
    void everyLengthUpToThirtyOne();
    void everyLengthAroundTheLimit();
    void anOpenBufferIsUsedAgain();
    void mutations_data();
    void mutations();
};

void tst_uevent::realNotifications_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("text");
    for (size_t a = 0; a < sizeof actions / sizeof actions[0]; ++a) {
        for (size_t d = 0; d < sizeof devices / sizeof devices[0]; ++d) {
            const QByteArray all = QByteArray(actions[a]) + devices[d].rest;
            QByteArray text = all;
            QTest::newRow(qPrintable(QString::fromLatin1("%1 %2").arg(
                QLatin1String(actions[a]), QLatin1String(devices[d].name))))
                << testing::datagram(all.constData()) << QByteArray(actions[a])
                << text.replace('|', "");
        }
    }
}

void tst_uevent::realNotifications()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, text);
    QCOMPARE(joined(bytes), text);
    const uevent::Notification notification = uevent::notification(joined(bytes));
    QCOMPARE(notification.action, QString::fromLatin1(action));
    QCOMPARE(notification.device, QString::fromLatin1(text));
}

void tst_uevent::fieldsAreTrimmedAndJoined_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("text");
    // clang-format off
    const struct { const char* name; const char* bytes; const char* text; } rows[] = {
        {"one NUL after each",   "add@/devices/x|ACTION=add|SUBSYSTEM=usb|", "add@/devices/xACTION=addSUBSYSTEM=usb"},
        {"none at the end",      "add@/x|A=1",          "add@/xA=1"},
        {"NULs in front",        "|||add@/x|A=1|",      "add@/xA=1"},
        {"runs of NULs",         "add@/x||||A=1|||",    "add@/xA=1"},
        {"line feeds too",       "add@/x\nA=1\n",       "add@/xA=1"},
        {"blanks at the ends",   "  add@/x \t| A=1 \r|", "add@/xA=1"},
        {"blanks inside stay",   "add@/x|N=\"a  b\tc\"|", "add@/xN=\"a  b\tc\""},
        {"carriage return",      "add@/x\r|A=\r1|",     "add@/xA=\r1"},
        {"form feed, tab",       "\f\vadd@/x\v|\f|A=1", "add@/xA=1"},
        {"only white space",     " \t\n\v\f\r |",       ""},
        {"only NULs",            "||||||||",            ""},
        {"nothing",              "",                    ""},
        {"no at sign",           "libdevice|A=1|",      "libdeviceA=1"},
        {"high bytes stay",      "add@/\xFC\x80|\xFF|", "add@/\xFC\x80\xFF"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << testing::datagram(rows[i].bytes) << QByteArray(rows[i].text);
}

void tst_uevent::fieldsAreTrimmedAndJoined()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, text);
    QCOMPARE(joined(bytes), text);
    QCOMPARE(joinedByHand(bytes), text);
}

void tst_uevent::actionStandsBeforeTheFirstAtSign_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("action");
    // clang-format off
    const struct { const char* name; const char* line; const char* action; } rows[] = {
        {"plain",          "add@/x",         "add"},
        {"capitals",       "ADD@/x",         "add"},
        {"mixed",          "cHaNgE@/x",      "change"},
        {"no at sign",     "add",            ""},
        {"at sign first",  "@add",           ""},
        {"only at sign",   "@",              ""},
        {"nothing",        "",               ""},
        {"second at sign", "remove@add@x",   "remove"},
        {"blank inside",   "add @x",         "add "},
        {"umlaut",         "\xC4@x",         "\xE4"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name)
            << QByteArray(rows[i].line) << QString::fromLatin1(rows[i].action);
}

void tst_uevent::actionStandsBeforeTheFirstAtSign()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, action);
    QCOMPARE(uevent::notification(line).action, action);
    QCOMPARE(uevent::notification(line).device, QString::fromLatin1(line.constData()));
}

void tst_uevent::deviceIsAllOfTheLine()
{
    QByteArray line("add@");
    for (int byte = 0; byte < 256; ++byte)
        line += static_cast<char>(byte);
    const QString device = uevent::notification(line).device;
    QCOMPARE(static_cast<int>(device.size()), 260);
    for (int byte = 0; byte < 256; ++byte)
        QCOMPARE(static_cast<int>(device.at(4 + byte).unicode()), byte);
}

void tst_uevent::everyLengthUpToThirtyOne()
{
    const QByteArray whole = testing::datagram("remove@/devices/y|ACTION=remove|SUBSYSTEM=usb|");
    for (int length = 0; length <= 31; ++length) {
        const QByteArray text = joined(whole.left(length));
        QCOMPARE(text, joinedByHand(whole.left(length)));
        QCOMPARE(uevent::notification(text).action,
                 QLatin1String(length > 6 ? "remove" : "")); // seven bytes hold the at sign
        QCOMPARE(joined(QByteArray(length, '\0')), QByteArray());
        QCOMPARE(joined(QByteArray(length, 'a')), QByteArray(length, 'a'));
        QCOMPARE(uevent::notification(QByteArray(length, '@')).action, QString());
    }
}

void tst_uevent::everyLengthAroundTheLimit()
{
    for (int length = 4094; length <= 4098; ++length) {
        const QByteArray filled = "change@" + QByteArray(length - 7, 'x');
        QCOMPARE(joined(filled), filled);
        QCOMPARE(uevent::notification(filled).action, QString::fromLatin1("change"));
        QCOMPARE(static_cast<int>(uevent::notification(filled).device.size()), length);
    }
    const QByteArray fields = QByteArray("x\0", 2).repeated(2048);
    QCOMPARE(joined("add@" + fields), "add@" + QByteArray(2048, 'x'));
}

void tst_uevent::anOpenBufferIsUsedAgain()
{
    QBuffer buffer;
    QCOMPARE(uevent::joinedFields(testing::datagram("add@/first|A=1|"), &buffer),
             QByteArray("add@/firstA=1"));
    QVERIFY(buffer.isOpen());
    QCOMPARE(uevent::joinedFields(testing::datagram("add@/2|"), &buffer), QByteArray("add@/2"));
    QCOMPARE(uevent::joinedFields(QByteArray(), &buffer), QByteArray());
}

void tst_uevent::mutations_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 10; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void tst_uevent::mutations()
{
    QFETCH(int, seed);
    Random random(static_cast<quint32>(seed));
    const char* const rests[] = {keyboard, mouse, usb, block, net, bare};
    QBuffer buffer;
    for (int i = 0; i < 10000; ++i) {
        QByteArray bytes = testing::datagram(
            (QByteArray(actions[random.below(8)]) + rests[random.below(6)]).constData());
        mutate(&bytes, &random);
        const QByteArray text = uevent::joinedFields(bytes, &buffer);
        QCOMPARE(text, joinedByHand(bytes));
        const uevent::Notification notification = uevent::notification(text);
        const int at = static_cast<int>(text.indexOf('@'));
        QCOMPARE(notification.device, QString(QLatin1String(text.constData())));
        QCOMPARE(notification.action, notification.device.left(qMax(at, 0)).toLower());
    }
}

QTEST_APPLESS_MAIN(tst_uevent)
#include "tst_uevent.moc"
