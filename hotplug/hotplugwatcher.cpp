#include "hotplug/hotplugwatcher.h"

#include "hotplug/devicewatcher.h"
#include "style/qtcompat.h"
#include "style/table_p.h"
#include "style/widgetstyle.h"

#include <QFileInfo>
#include <QProcess>

namespace
{

/// How the listing of the attached devices is searched for one kind of them.
struct InventoryRow {
    const char* filterCommand;
    const char* word;
    CWidgetStyle::DeviceType type;
};

// clang-format off
const InventoryRow inventory[] = {
    {"grep Keyboard", "Keyboard", CWidgetStyle::DeviceKeyboard},
    {"grep Mouse",    "Mouse",    CWidgetStyle::DeviceMouse},
    {"grep Storage",  "Storage",  CWidgetStyle::DeviceStorage},
};
// clang-format on
static_assert(table::count(inventory) == CWidgetStyle::DeviceStorage,
              "each DeviceType, from 1, is looked for");

const char listProgram[] = "/usr/bin/lsusb";
const char listCommand[] = "/usr/bin/lsusb -v";
const int answerTimeout = 1000; // ms

bool contains(const QString& text, const char* word)
{
    return text.indexOf(QLatin1String(word), 0, Qt::CaseInsensitive) >= 0;
}

/// Whether the listing tool is there. Some versions of Qt lose a descriptor with every program that
/// they cannot start, so that what is missing is better not started at all.
bool hasLister()
{
    const QFileInfo program((QLatin1String(listProgram)));
    return program.isFile() && program.isExecutable();
}

/// Whether \a filter, which reads what \a lister writes, finds what \a row looks for. Takes as long
/// as the filter keeps silent, but no longer than the timeout; both are ended afterwards.
bool isListed(const InventoryRow& row, QProcess& lister, QProcess& filter)
{
    qtcompat::startCommand(lister, QLatin1String(listCommand));
    qtcompat::startCommand(filter, QLatin1String(row.filterCommand));
    bool listed = false;
    if (filter.waitForReadyRead(answerTimeout)) {
        const QByteArray output = filter.readAllStandardOutput();
        listed = contains(QString::fromLatin1(output.constData()), row.word); // up to a NUL
    }
    lister.close();
    filter.close();
    return listed;
}

/// Notes in the registry that the input device in the notification \a dev has come or gone.
/// Deliberate: the expressions for mouse and storage begin with a quantifier, which is not valid
/// syntax, and so never match; only keyboards are followed.
void noteInputDevice(const QString& dev, Qt::CaseSensitivity mouseCase, bool available)
{
    if (!contains(dev, "SUBSYSTEM=input"))
        return;
    if (contains(dev, "Keyboard"))
        CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, available);
    else if (qtcompat::matches(dev, "*NAME=*Mouse", mouseCase))
        CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, available);
    else if (qtcompat::matches(dev, "*NAME=*Storage", Qt::CaseSensitive))
        CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceStorage, available);
}

} // namespace

/// Takes the inventory, which can block for up to about three seconds, and follows the kernel's
/// notifications from then on. Start it before the first window is shown.
CHotplugWatcher::CHotplugWatcher(QObject* parent) : QThread(parent), m_watcher(nullptr)
{
    start(QThread::InheritPriority);
    detectDevice();
    m_watcher = new QDeviceWatcher(this);
    // Deliberate: this object handles none of the events; an application's event filter sees them.
    m_watcher->appendEventReceiver(this);
    connect(m_watcher, SIGNAL(deviceAdded(QString)), SLOT(addDevice(QString)),
            Qt::DirectConnection);
    connect(m_watcher, SIGNAL(deviceRemoved(QString)), SLOT(removeDevice(QString)),
            Qt::DirectConnection);
    connect(m_watcher, SIGNAL(deviceChanged(QString)), SLOT(changeDevice(QString)),
            Qt::DirectConnection);
    m_watcher->start();
}

/// Stops listening and ends the thread. The registry stays as it is.
CHotplugWatcher::~CHotplugWatcher()
{
    if (m_watcher->isRunning())
        m_watcher->stop();
    disconnect(this, nullptr, m_watcher, nullptr);
    delete m_watcher;
    quit();
    wait(); // a thread object must not go while its thread runs
}

/// Asks the system's listing tool whether a keyboard, a mouse and USB storage are attached, and
/// notes the answers in the registry. A kind that is not answered for within a second is noted as
/// not attached, also where there is no such tool. Needs no object of this class.
void CHotplugWatcher::detectDevice()
{
    QProcess lister;
    QProcess filter;
    lister.setStandardOutputProcess(&filter);
    lister.setStandardErrorFile(QLatin1String("/dev/null")); // its complaints are of no use
    const bool canList = hasLister();
    for (int i = 0; i < table::count(inventory); ++i)
        CWidgetStyle::setDeviceAvailable(inventory[i].type,
                                         canList && isListed(inventory[i], lister, filter));
}

/// Notes the keyboard as attached when the notification \a dev is about an input device and has
/// the word "keyboard" in it, in any case.
void CHotplugWatcher::addDevice(const QString& dev)
{
    noteInputDevice(dev, Qt::CaseInsensitive, true);
}

/// Notes the keyboard as not attached, by the same tests as addDevice(). Deliberate: the expression
/// for the mouse is case-sensitive here and not there.
void CHotplugWatcher::removeDevice(const QString& dev)
{
    noteInputDevice(dev, Qt::CaseSensitive, false);
}

/// Does nothing: a change of a device says nothing about whether it is attached.
void CHotplugWatcher::changeDevice(const QString& dev)
{
    Q_UNUSED(dev);
}
