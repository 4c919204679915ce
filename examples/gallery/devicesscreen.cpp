#include "devicesscreen.h"

#include "panel.h"

#include <CHotplugWatcher>
#include <CWidgetStyle>
#include <QDeviceWatcher>
#include <QTime>

namespace
{

const int left = layout::margin;
const int rowPitch = 40;
const int linePitch = 32;
const int lineCount = 8;

const struct {
    CWidgetStyle::DeviceType type;
    const char* name;
} devices[] = {
    {CWidgetStyle::DeviceKeyboard, "Keyboard"},
    {CWidgetStyle::DeviceMouse, "Mouse"},
    {CWidgetStyle::DeviceStorage, "USB storage"},
};

} // namespace

DevicesScreen::DevicesScreen(Panel* panel)
    : Screen(QLatin1String("Devices"), panel), m_watcher(nullptr)
{
    addHeading(QLatin1String("Attached devices"), layout::firstHeading);
    addRegistry(52);
    addHeading(QLatin1String("Last notifications of the kernel"), 188);
    addNotifications(224);
    refresh();
}

void DevicesScreen::watch()
{
    if (m_watcher)
        return;
    m_watcher = new CHotplugWatcher(this);
    // The hot-plug watcher's own source of notifications, to show them as they come.
    QDeviceWatcher* source = m_watcher->findChild<QDeviceWatcher*>();
    connect(source, SIGNAL(deviceAdded(QString)), this, SLOT(noteAdded(QString)));
    connect(source, SIGNAL(deviceRemoved(QString)), this, SLOT(noteRemoved(QString)));
    connect(source, SIGNAL(deviceChanged(QString)), this, SLOT(noteChanged(QString)));
    refresh();
}

void DevicesScreen::refresh()
{
    for (int i = 0; i < m_lamps.size(); ++i) {
        const bool attached = CWidgetStyle::isDeviceAvailable(devices[i].type);
        m_lamps.at(i)->setBackground(CWidgetStyle::getLEDStatus(
            attached ? CWidgetStyle::LedState1 : CWidgetStyle::LedState0, CWidgetStyle::LargeIcon));
        m_states.at(i)->setText(QLatin1String(attached ? "attached" : "not attached"));
    }
    Q_EMIT refreshed();
}

void DevicesScreen::noteAdded(const QString& device)
{
    note(QLatin1String("added"), device);
}

void DevicesScreen::noteRemoved(const QString& device)
{
    note(QLatin1String("removed"), device);
}

void DevicesScreen::noteChanged(const QString& device)
{
    note(QLatin1String("changed"), device);
}

void DevicesScreen::addRegistry(int y)
{
    for (size_t i = 0; i < sizeof devices / sizeof devices[0]; ++i, y += rowPitch) {
        CWidget* lamp = new CWidget(this);
        lamp->setSize(19, 19);
        lamp->move(left, y + 4);
        m_lamps.append(lamp);
        plainLabel(QLatin1String(devices[i].name), this)->setGeometry(left + 32, y, 160, 28);
        CLabel* state = plainLabel(QString(), this);
        state->setGeometry(left + 200, y, 200, 28);
        m_states.append(state);
    }
}

void DevicesScreen::addNotifications(int y)
{
    for (int i = 0; i < lineCount; ++i) {
        CLabel* line = new CLabel(this);
        line->setSize(contentWidth(), linePitch);
        line->setBackgroundColor(i % 2 ? QColor(0xF4, 0xF5, 0xF9) : QColor(Qt::white));
        line->move(left, y + i * linePitch);
        m_lines.append(line);
    }
    m_lines.first()->setText(QLatin1String("none yet"));
}

/// The newest stands on top. A notification is one run of text; the path of the device is what ends
/// at its first field.
void DevicesScreen::note(const QString& action, const QString& device)
{
    const QString path =
        device.section(QLatin1String("ACTION="), 0, 0).section(QLatin1Char('@'), 1);
    m_notes.prepend(
        QString::fromLatin1("%1  %2  %3")
            .arg(QTime::currentTime().toString(QLatin1String("HH:mm:ss")), action, path));
    while (m_notes.size() > lineCount)
        m_notes.removeLast();
    for (int i = 0; i < lineCount; ++i)
        m_lines.at(i)->setText(m_notes.value(i));
    refresh();
}
