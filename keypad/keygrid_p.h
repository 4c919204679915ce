#ifndef CWIDGET_KEYPAD_KEYGRID_P_H
#define CWIDGET_KEYPAD_KEYGRID_P_H

#include "style/widgetstyle.h"

#include <QEvent>
#include <QList>
#include <QPointer>

class CKeyButton;

// What the grids of keys have in common: how they are built from tables, and how a press is taken.
namespace keygrid
{

/// A key of a grid. A key of the code Qt::Key_unknown is blank: it only keeps a place free.
struct Key {
    const char* text;
    int code;
    char symbol;                      // 0 for none
    CWidgetStyle::KeyStatus pictures; // pressed; the released and the selected one follow it
    int width;
    int height;
};

/// A row takes the next keys of the table.
struct Row {
    int keyCount;
    int spacing; // between the keys; see inheritedSpacing
    bool centered;
};

/// A grid, rows from the top.
struct Plan {
    const Key* keys;
    const Row* rows;
    int rowCount;
    int leftMargin;
    int topMargin;
    int rightMargin;
    int bottomMargin;
    int spacing; // between the rows
};

/// The spacing that a layout has from its parent or, the outermost one, from the style.
const int inheritedSpacing = -1;

/// How many keys the rows from \a rows on take together.
constexpr int keysIn(const Row* rows, int rowCount)
{
    return rowCount == 0 ? 0 : rows->keyCount + keysIn(rows + 1, rowCount - 1);
}

CKeyButton* build(QWidget* grid, const Plan& plan, QList<CKeyButton*>* keys);
void translate(QWidget* grid);
void setLook(CKeyButton* key, CWidgetStyle::KeyStatus pressed);

void watch(QObject* grid, QList<CKeyButton*>* keys, CKeyButton* key);
CKeyButton* keyOf(const QList<CKeyButton*>& keys, int code);
void select(CKeyButton** selected, CKeyButton** current, CKeyButton* key);

/// The event filter of \a grid: hands a pressed key to its keyPress(). The press goes on to the
/// key, unless a slot has deleted that. A double click, as which Qt delivers the second of two
/// quick touches, is none: the key makes a press of it.
template <typename Grid>
bool filterPress(Grid* grid, QObject* watched, QEvent* event)
{
    const QPointer<Grid> self(grid);
    const QPointer<QObject> receiver(watched);
    if (event->type() == QEvent::MouseButtonPress)
        grid->keyPress(qobject_cast<CKeyButton*>(watched));
    return !receiver || (self && self->QObject::eventFilter(watched, event));
}

} // namespace keygrid

#endif
