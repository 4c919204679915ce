#ifndef GALLERY_DEVICESSCREEN_H
#define GALLERY_DEVICESSCREEN_H

#include "gallerywidgets.h"

#include <QList>
#include <QStringList>

class CHotplugWatcher;
class Panel;

/// What the registry says about keyboard, mouse and USB storage, as it changes, and the last
/// notifications of the kernel.
class DevicesScreen : public Screen
{
    Q_OBJECT

public:
    explicit DevicesScreen(Panel* panel);

public Q_SLOTS:
    /// Starts to watch; the inventory that this begins with may take up to three seconds.
    void watch();

Q_SIGNALS:
    /// Something was plugged or pulled; the registry knows it already.
    void refreshed();

private Q_SLOTS:
    void noteAdded(const QString& device);
    void noteRemoved(const QString& device);
    void noteChanged(const QString& device);

private:
    void addRegistry(int y);
    void addNotifications(int y);
    void refresh();
    void note(const QString& action, const QString& device);

    CHotplugWatcher* m_watcher;
    QList<CWidget*> m_lamps;
    QList<CLabel*> m_states;
    QList<CLabel*> m_lines;
    QStringList m_notes;
};

#endif
