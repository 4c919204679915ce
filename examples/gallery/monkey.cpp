#include "monkey.h"

#include "panel.h"
#include "themescreen.h"
#include "warnings.h"

#include <CHotplugWatcher>
#include <QApplication>
#include <QComboBox>
#include <QDeviceChangeEvent>
#include <QDeviceWatcher>
#include <QDialog>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmapCache>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <malloc.h>
#include <unistd.h>

namespace
{

// From the middle to the end, in bytes. Qt's caches of fonts and texts hold up to 750 kB more or
// less at times; 50,000 steps that lose 32 bytes each lose twice as much.
const qint64 mostGrowth = 1024 * 1024;
const int warmSteps = 10000; // with fewer of them the caches are still filling
const int beyondEdge = 20;   // pixels that a finger slides out of the panel

// What the kernel says of devices, and what it never would.
const char* const notifications[] = {
    "/devices/usb1/1-1/inputACTION=addSUBSYSTEM=inputNAME=\"USB Keyboard\"",
    "/devices/usb1/1-2/inputACTION=addSUBSYSTEM=inputNAME=\"USB Mouse\"",
    "/devices/usb1/1-3/block/sdaACTION=addSUBSYSTEM=blockDEVNAME=sda1DEVTYPE=partition",
    "/devices/usb1/1-3/block/sdaACTION=changeSUBSYSTEM=block",
    "SUBSYSTEM=input Keyboard",
    "SUBSYSTEM=input Mouse",
    "@",
    "",
};

const struct {
    const char* name;
    QDeviceChangeEvent::Action action;
} changes[] = {
    {"deviceAdded", QDeviceChangeEvent::Add},
    {"deviceRemoved", QDeviceChangeEvent::Remove},
    {"deviceChanged", QDeviceChangeEvent::Change},
};

const struct {
    int key;
    const char* text;
} keys[] = {
    // clang-format off
    {Qt::Key_A,         "a"},
    {Qt::Key_7,         "7"},
    {Qt::Key_Minus,     "-"},
    {Qt::Key_Period,    "."},
    {Qt::Key_Space,     " "},
    {Qt::Key_Backspace, ""},
    {Qt::Key_Delete,    ""},
    {Qt::Key_Return,    "\r"},
    {Qt::Key_Escape,    ""},
    {Qt::Key_Tab,       "\t"},
    {Qt::Key_Up,        ""},
    {Qt::Key_Down,      ""},
    {Qt::Key_Left,      ""},
    {Qt::Key_Home,      ""},
    {Qt::Key_PageDown,  ""},
    // clang-format on
};

const int longestText = 100; // then a field is emptied

template <class Row, int Count>
int countOf(const Row (&)[Count])
{
    return Count;
}

// For the handlers of messages and of signals, which know no object.
QStringList* warnings = nullptr;
char crashText[80];

void noteWarning(const QString& text)
{
    // Offscreen there are no windows to raise, and Qt says so.
    if (warnings && !text.startsWith(QLatin1String("This plugin does not support ")))
        warnings->append(text);
}

/// Says where it was, and lets the signal do what it would have done.
void noteCrash(int number)
{
    if (write(STDERR_FILENO, crashText, strlen(crashText)) < 0)
        crashText[0] = 0; // nothing else could be done
    signal(number, SIG_DFL);
    raise(number);
}

void watchForCrashes(void (*handler)(int))
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these say more
    const int numbers[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
    for (size_t i = 0; i < sizeof numbers / sizeof numbers[0]; ++i)
        signal(numbers[i], handler);
#else
    Q_UNUSED(handler);
#endif
}

qint64 memoryInUse()
{
#if defined(__GLIBC__) && defined(__GLIBC_PREREQ)
#if __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#endif
#endif
    return 0;
}

} // namespace

struct Monkey::ActionRow {
    int share; // of a thousand
    const char* name;
    Action action;
};

const Monkey::ActionRow Monkey::s_actions[] = {
    // clang-format off
    {480, "touch",         &Monkey::touch},
    { 60, "double touch",  &Monkey::touchTwice},
    {178, "drag",          &Monkey::drag},
    {160, "key",           &Monkey::type},
    { 60, "screen change", &Monkey::changeScreen},
    { 60, "notification",  &Monkey::plug},
    {  2, "style change",  &Monkey::restyle},
    // clang-format on
};

Monkey::Monkey(Panel* panel, int steps, unsigned int seed)
    : m_panel(panel),
      m_steps(steps),
      m_seed(seed),
      m_random(seed),
      m_step(0),
      m_depth(0),
      m_settling(false),
      m_finished(false),
      m_failed(false)
{
}

bool Monkey::run()
{
    QStringList seen;
    warnings = &seen;
    receiveWarnings(noteWarning);
    watchForCrashes(noteCrash);
    QApplication::setQuitOnLastWindowClosed(false);
    stepLater();
    QApplication::exec();
    watchForCrashes(SIG_DFL);
    receiveWarnings(nullptr);
    warnings = nullptr;
    return !m_failed;
}

/// By a timer of its own: a keypad that opens within a step has the next ones in its own loop, and
/// clocks and paints have their turn in between.
void Monkey::stepLater()
{
    QTimer::singleShot(0, this, SLOT(step()));
}

void Monkey::step()
{
    if (m_finished)
        return;
    stepLater();
    ++m_depth;
    m_settling = m_settling || m_step == m_steps / 2 || m_step == m_steps;
    if (m_settling)
        settle();
    else
        act();
    --m_depth;
}

void Monkey::act()
{
    ++m_step;
    snprintf(crashText, sizeof crashText, "monkey: seed %u, step %d: a crash\n", m_seed, m_step);
    int share = below(1000);
    const ActionRow* row = s_actions;
    while (share >= row->share) {
        share -= row->share;
        ++row;
    }
    (this->*row->action)();
    checkWarnings(row->name);
}

/// Brings the panel to the state in which it is measured, in as many turns as that takes.
void Monkey::settle()
{
    if (closeWhatIsOpen() || m_depth > 1)
        return;
    m_panel->showScreen(Panel::screenNames().first());
    emptyFields();
    completeBoxes();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QPixmapCache::clear();
    m_settling = false;
    if (m_step < m_steps) {
        m_middle = usage();
        ++m_step; // the middle is a step of its own
        return;
    }
    m_finished = true;
    compare(usage());
    QApplication::quit();
}

/// Closes the window on top, if there is one over the panel; it has gone by the next turn.
bool Monkey::closeWhatIsOpen()
{
    QWidget* const open = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                            : QApplication::activeModalWidget();
    if (!open)
        return false;
    QDialog* const dialog = qobject_cast<QDialog*>(open);
    if (dialog)
        dialog->reject();
    else
        open->close();
    return true;
}

/// What was typed, and what of it could be taken back, is no growth.
void Monkey::emptyFields()
{
    const QList<QLineEdit*> fields = m_panel->findChildren<QLineEdit*>();
    for (int i = 0; i < fields.size(); ++i)
        fields.at(i)->setText(QString());
}

/// Qt makes a popup of its own for each box, once and whenever it needs it first.
void Monkey::completeBoxes()
{
    const QList<QComboBox*> boxes = m_panel->findChildren<QComboBox*>();
    for (int i = 0; i < boxes.size(); ++i)
        boxes.at(i)->view();
}

Monkey::Usage Monkey::usage() const
{
    Usage usage;
    usage.memory = memoryInUse();
    usage.objects = static_cast<int>(QApplication::allWidgets().size() +
                                     m_panel->findChildren<QObject*>().size());
    usage.files = static_cast<int>(QDir(QLatin1String("/proc/self/fd")).entryList().size());
    return usage;
}

void Monkey::compare(const Usage& end)
{
    printf("monkey: seed %u, %d steps; in the middle %lld kB, %d objects, %d files; at the end "
           "%lld kB, %d objects, %d files\n",
           m_seed, m_steps, m_middle.memory / 1024, m_middle.objects, m_middle.files,
           end.memory / 1024, end.objects, end.files);
    const bool isFatter = end.memory - m_middle.memory > mostGrowth || end.files > m_middle.files;
    if ((m_steps >= warmSteps && isFatter) || end.objects > m_middle.objects)
        fail(QLatin1String("the panel has grown"));
}

void Monkey::checkWarnings(const char* action)
{
    if (!m_finished && !warnings->isEmpty())
        fail(QString::fromLatin1("%1: %2").arg(QLatin1String(action), warnings->first()));
}

void Monkey::fail(const QString& what)
{
    fprintf(stderr, "monkey: seed %u, step %d: %s\n", m_seed, m_step, qPrintable(what));
    m_failed = true;
    m_finished = true;
    QApplication::exit(1); // the loops of keypads, too
}

void Monkey::touch()
{
    QPoint point;
    const Target target = chooseTarget(&point);
    send(target, QEvent::MouseButtonPress, point);
    send(target, QEvent::MouseButtonRelease, point);
}

void Monkey::touchTwice()
{
    QPoint point;
    const Target target = chooseTarget(&point);
    send(target, QEvent::MouseButtonPress, point);
    send(target, QEvent::MouseButtonRelease, point);
    send(target, QEvent::MouseButtonDblClick, point);
    send(target, QEvent::MouseButtonRelease, point);
}

/// From a widget to wherever the finger slides, beyond the widget as well.
void Monkey::drag()
{
    QPoint point;
    const Target target = chooseTarget(&point);
    send(target, QEvent::MouseButtonPress, point);
    for (int moves = below(3); target && moves >= 0; --moves) {
        const QSize around = target->size() + QSize(2 * beyondEdge, 2 * beyondEdge);
        point = pointIn(around) - QPoint(beyondEdge, beyondEdge);
        send(target, QEvent::MouseMove, point);
    }
    send(target, QEvent::MouseButtonRelease, point);
}

/// Into whatever has the focus.
void Monkey::type()
{
    const int row = below(countOf(keys));
    const QString text = QLatin1String(keys[row].text);
    const int types[] = {QEvent::KeyPress, QEvent::KeyRelease};
    for (int i = 0; i < countOf(types); ++i) {
        QWidget* const focus = QApplication::focusWidget();
        QKeyEvent event(static_cast<QEvent::Type>(types[i]), keys[row].key, Qt::NoModifier, text);
        QApplication::sendEvent(focus ? focus : m_panel, &event);
    }
    QLineEdit* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (field && field->text().size() > longestText)
        field->clear();
}

void Monkey::changeScreen()
{
    const QStringList names = Panel::screenNames();
    m_panel->showScreen(names.at(below(static_cast<int>(names.size()))));
}

/// As the kernel's notifications arrive: a signal of the watcher, and an event for receivers.
void Monkey::plug()
{
    const QString text = QLatin1String(notifications[below(countOf(notifications))]);
    const int row = below(countOf(changes));
    QDeviceWatcher* const watcher = m_panel->findChild<QDeviceWatcher*>();
    if (watcher)
        QMetaObject::invokeMethod(watcher, changes[row].name, Q_ARG(QString, text));
    QApplication::postEvent(m_panel, new QDeviceChangeEvent(changes[row].action, text));
}

void Monkey::restyle()
{
    const QStringList families = ThemeScreen::families();
    m_panel->restyle(families.at(below(static_cast<int>(families.size()))));
}

int Monkey::below(int count)
{
    return static_cast<int>(m_random() % static_cast<unsigned int>(qMax(1, count)));
}

QPoint Monkey::pointIn(const QSize& size)
{
    const int x = below(size.width());
    return QPoint(x, below(size.height()));
}

/// A widget of the window on top, and a point in it: as often one of all widgets, however small, as
/// whatever is at a point of the window.
Monkey::Target Monkey::chooseTarget(QPoint* point)
{
    QWidget* top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (!top)
        top = m_panel;
    const QList<QWidget*> all = top->findChildren<QWidget*>();
    QWidget* chosen = all.value(below(static_cast<int>(all.size())));
    if (!chosen || !chosen->isVisible() || chosen->window() != top || below(2)) {
        const QPoint place = pointIn(top->size());
        chosen = top->childAt(place);
    }
    if (!chosen)
        chosen = top;
    *point = pointIn(chosen->size());
    return chosen;
}

void Monkey::send(const Target& target, int type, const QPoint& point)
{
    if (!target)
        return;
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(static_cast<QEvent::Type>(type), point, target->mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}
