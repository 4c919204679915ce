#include "shots.h"

#include "entryscreen.h"
#include "listsscreen.h"
#include "panel.h"
#include "shotwriter.h"

#include <CPageListWidget>
#include <QApplication>
#include <QMouseEvent>

namespace
{

const struct {
    CKeyPadFactory::KeyPadType type;
    const char* name;
} keypads[] = {
    // clang-format off
    {CKeyPadFactory::SKP_GENERAL, "keypad-general"},
    {CKeyPadFactory::SKP_HEX,     "keypad-hex"},
    {CKeyPadFactory::SKP_BINARY,  "keypad-binary"},
    {CKeyPadFactory::SKP_DECIMAL, "keypad-decimal"},
    {CKeyPadFactory::SKP_FLOAT,   "keypad-float"},
    // clang-format on
};

/// Lifts a finger from \a widget.
void touch(QWidget* widget)
{
    const QPoint point = widget->rect().center();
    QMouseEvent event(QEvent::MouseButtonRelease, point, widget->mapToGlobal(point), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void writeKeypads(Panel* panel, ShotWriter* writer)
{
    const QString name = QLatin1String("entry");
    panel->showScreen(name);
    const EntryScreen* screen = qobject_cast<EntryScreen*>(panel->screen(name));
    for (size_t i = 0; i < sizeof keypads / sizeof keypads[0]; ++i) {
        panel->setHint(QString()); // what the one before has entered
        writer->expectKeypad(QLatin1String(keypads[i].name));
        touch(screen->field(keypads[i].type));
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void writeOpenList(Panel* panel, ShotWriter* writer)
{
    const QString name = QLatin1String("lists");
    panel->showScreen(name);
    CComboBox* combo = qobject_cast<ListsScreen*>(panel->screen(name))->longList();
    combo->showPopup();
    QApplication::processEvents();
    writer->write(QLatin1String("list-open"), combo->findChild<CPageListWidget*>());
    combo->hidePopup();
}

} // namespace

bool writeShots(Panel* panel, const QString& folder)
{
    ShotWriter writer(panel, folder);
    panel->freezeTime();
    panel->show();
    panel->activateWindow();
    QApplication::processEvents();
    const QStringList names = Panel::screenNames();
    for (int i = 0; i < names.size(); ++i) {
        panel->showScreen(names.at(i));
        panel->screen(names.at(i))->prepareShot();
        writer.write(names.at(i));
    }
    writeKeypads(panel, &writer);
    writeOpenList(panel, &writer);
    return writer.isGood();
}
