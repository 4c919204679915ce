#ifndef CWIDGET_TESTS_SUPPORT_KEYPADS_H
#define CWIDGET_TESTS_SUPPORT_KEYPADS_H

// What the tests of keypads share: the keys that a grid must have, a finger, and a user of the
// keypads that open themselves.

#include "keypad/keybutton.h"
#include "keypad/softkeypad.h"
#include "support/testing.h"

#include <QEventLoop>
#include <QPointer>
#include <QSize>

#include <functional>

namespace testing
{

/// A key as it must be.
struct ExpectedKey {
    QString text;
    int code;
    QString symbol;
    int background; // the picture's number; pressed, released and selected stand around it
    QSize size;
    int row;
};

typedef QList<ExpectedKey> ExpectedKeys;

/// The keys of each grid in their order. The blank key has the code Qt::Key_unknown.
ExpectedKeys generalKeys();
ExpectedKeys hexKeys();
ExpectedKeys numericKeys();

/// Where keys of these sizes stand on a grid of \a size, rows of \a rowSpacings; -1 leaves a
/// spacing to the layout. The rows of \a centered are centred as a whole.
QList<QRect> geometryOf(const ExpectedKeys& specs, const QSize& size, const QMargins& margins,
                        int spacing, const QList<int>& rowSpacings, const QList<bool>& centered);

QList<QRect> geometryOf(const QList<CKeyButton*>& keys);

/// Empty when \a key has the texts, code and size of \a spec, else what differs.
QString difference(CKeyButton* key, const ExpectedKey& spec);

/// Empty when \a key shows this picture and text colour.
QString lookDifference(CKeyButton* key, int background, Qt::GlobalColor textColor);

/// Empty when the three states of \a key have the pictures around \a background. Leaves it
/// released.
QString statesDifference(CKeyButton* key, int background);

/// Whether two pictures have the same pixels; null ones are alike.
bool sameImage(const QPixmap& a, const QPixmap& b);
QPixmap keyPicture(int status);

/// A type by its number, which may be one that there is not.
inline CKeyPadFactory::KeyPadType type(int number)
{
    return static_cast<CKeyPadFactory::KeyPadType>(number);
}

QList<CKeyButton*> keysOf(const QWidget* widget);
CKeyButton* keyOf(const QWidget* widget, int code);
QStringList textsOf(const QList<CKeyButton*>& keys);
QList<int> selectedKeys(const QList<CKeyButton*>& keys);

/// A finger on the middle of the key.
void touch(QWidget* key);
void press(QWidget* key);
void release(QWidget* key);

/// What Qt makes of a press that quickly follows another one.
void pressAgain(QWidget* key);

/// Deletes what waits for being deleted.
void deleteDeferred();

/// How many widgets of this class there are, shown or not.
template <typename Class>
int livingWidgets()
{
    int count = 0;
    const QWidgetList widgets = testcompat::allWidgets();
    for (int i = 0; i < widgets.size(); ++i)
        count += qobject_cast<Class*>(widgets.at(i)) ? 1 : 0;
    return count;
}

/// Takes what the current keypad of the event loop offers: calls an action with it as soon as it is
/// on screen, and rejects it afterwards when it is still open.
class KeyPadUser : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void(CSoftKeyPad*)> Action;

    explicit KeyPadUser(const Action& action);

    int opened() const;

    /// Does not reject it: something else must close it.
    void leaveOpen();

private Q_SLOTS:
    void act();

private:
    Action m_action;
    int m_opened;
    bool m_leavesOpen;
};

/// Calls something from within an event loop, as a running application does.
class EventLoopCall : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Action;

    static void run(const Action& action);

private Q_SLOTS:
    void act();

private:
    explicit EventLoopCall(const Action& action);

    Action m_action;
    QEventLoop m_loop;
};

} // namespace testing

#endif
