#ifndef CWIDGET_KEYPAD_KEYGRID_P_H
#define CWIDGET_KEYPAD_KEYGRID_P_H

#include "style/widgetstyle.h"

#include <QList>

class CAbstractKeyPad;
class CKeyButton;
class QEvent;
class QVBoxLayout;

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

/// The keys that a grid watches, of which one is selected. A touch comes in by the event filter of
/// the grid, a call by its keyPress(); both go to press(), which tells what is reported.
class Keys
{
public:
    explicit Keys(CAbstractKeyPad* grid);
    virtual ~Keys();

    void build(const Plan& plan);
    void append(CKeyButton* key);
    const QList<CKeyButton*>& all() const;
    CKeyButton* withCode(int code) const;

    bool filter(QObject* watched, QEvent* event);
    void press(CKeyButton* key);

protected:
    virtual bool accepts(const CKeyButton* key) const;
    virtual QString act(CKeyButton* key);

private:
    void addRow(QVBoxLayout* column, const Key* keys, const Row& row);
    void select(CKeyButton* key);

    CAbstractKeyPad* m_grid;
    CKeyButton* m_selected;
    QList<CKeyButton*> m_keys;

    Q_DISABLE_COPY(Keys)
};

void translate(QWidget* grid);
void setLook(CKeyButton* key, CWidgetStyle::KeyStatus pressed);

} // namespace keygrid

#endif
