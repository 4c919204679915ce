#include "keypad/keygrid_p.h"

#include "keypad/keybutton.h"
#include "style/keptpictures_p.h"
#include "style/table_p.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace keygrid
{

namespace
{

CWidgetStyle::KeyStatus following(CWidgetStyle::KeyStatus status, int count)
{
    return static_cast<CWidgetStyle::KeyStatus>(status + count);
}

// The texts that a language has of its own, by the codes of their keys.
const struct Caption {
    int code;
    const char* text;
} captions[] = {
    // clang-format off
    //: Key that deletes the character after the cursor. At most 4 letters: it is 40 pixels wide.
    {Qt::Key_Delete,   QT_TRANSLATE_NOOP("CAbstractKeyPad", "Del")},
    //: Key that empties the entry. 75 pixels wide.
    {Key_DelAll,       QT_TRANSLATE_NOOP("CAbstractKeyPad", "Del All")},
    //: Key that accepts the entry and closes the keypad. 90 pixels wide.
    {Key_Apply,        QT_TRANSLATE_NOOP("CAbstractKeyPad", "Apply")},
    //: Key that puts the next letter into the other case. 55 pixels wide.
    {Qt::Key_Shift,    QT_TRANSLATE_NOOP("CAbstractKeyPad", "Shift")},
    //: Key that switches to capital letters and back. 55 pixels wide.
    {Qt::Key_CapsLock, QT_TRANSLATE_NOOP("CAbstractKeyPad", "Caps")},
    //: Key that switches from letters to symbols and back. 66 pixels wide.
    {Key_Symbol,       QT_TRANSLATE_NOOP("CAbstractKeyPad", "Symbol")},
    //: The space bar.
    {Qt::Key_Space,    QT_TRANSLATE_NOOP("CAbstractKeyPad", "SPACE")},
    // clang-format on
};

// What a key was last captioned in the language of the time.
const char captionProperty[] = "caption";

/// The caption of the key with \a code in the language of the application; null for a key that has
/// none of its own.
QString captionOf(int code)
{
    for (int i = 0; i < table::count(captions); ++i) {
        if (captions[i].code == code)
            return QCoreApplication::translate("CAbstractKeyPad", captions[i].text);
    }
    return QString();
}

void setCaption(CKeyButton* key, const QString& caption)
{
    key->setKeyText(caption);
    key->setProperty(captionProperty, caption);
}

void setUpBlankKey(CKeyButton* key)
{
    key->setBackgroundColor(Qt::black);
    key->setEnabled(false);
}

void setUpKey(CKeyButton* key, const Key& row)
{
    const QString caption = captionOf(row.code);
    if (caption.isNull())
        key->setKeyText(QLatin1String(row.text));
    else
        setCaption(key, caption);
    key->setKey(row.code);
    if (row.symbol)
        key->setSymbol(QString(QLatin1Char(row.symbol)));
    setLook(key, row.pictures);
}

QHBoxLayout* addRow(QVBoxLayout* column, const Row& row)
{
    QHBoxLayout* layout = new QHBoxLayout;
    if (row.spacing != inheritedSpacing)
        layout->setSpacing(row.spacing);
    if (row.centered)
        layout->setAlignment(Qt::AlignCenter);
    column->addLayout(layout);
    return layout;
}

} // namespace

/// Lays out the keys of \a plan on \a grid, whose children they become in the order of the table,
/// and has the grid watch all but the blank ones, which it adds to \a keys. Selects the key that
/// accepts the entry, as a new grid shows it, and returns it.
CKeyButton* build(QWidget* grid, const Plan& plan, QList<CKeyButton*>* keys)
{
    QVBoxLayout* column = new QVBoxLayout(grid);
    column->setContentsMargins(plan.leftMargin, plan.topMargin, plan.rightMargin,
                               plan.bottomMargin);
    if (plan.spacing != inheritedSpacing)
        column->setSpacing(plan.spacing);
    const Key* next = plan.keys;
    for (int i = 0; i < plan.rowCount; ++i) {
        QHBoxLayout* row = addRow(column, plan.rows[i]);
        row->addStretch();
        for (int j = 0; j < plan.rows[i].keyCount; ++j, ++next) {
            CKeyButton* key = new CKeyButton(grid);
            key->setFixedSize(next->width, next->height);
            if (next->code == Qt::Key_unknown) {
                setUpBlankKey(key);
            } else {
                setUpKey(key, *next);
                watch(grid, keys, key);
            }
            row->addWidget(key);
        }
        row->addStretch();
    }
    CKeyButton* apply = keyOf(*keys, Key_Apply);
    apply->setSelected(true);
    return apply;
}

/// Captions the keys of \a grid anew after a change of the language. Keys that the grid did not
/// make, and those whose texts the application has changed, stay as they are.
void translate(QWidget* grid)
{
    const QObjectList children = grid->children();
    for (int i = 0; i < children.size(); ++i) {
        CKeyButton* const key = qobject_cast<CKeyButton*>(children.at(i));
        const QVariant caption = key ? key->property(captionProperty) : QVariant();
        if (caption.isValid() && caption.toString() == key->getKeyText())
            setCaption(key, captionOf(key->key()));
    }
}

/// Gives \a key the pictures from \a pressed on, and white text, black while it is selected.
void setLook(CKeyButton* key, CWidgetStyle::KeyStatus pressed)
{
    const QPixmap released = keptpictures::key(following(pressed, 1));
    const QVariant white = QColor(Qt::white);
    key->setTextColor(Qt::white);
    key->setBackground(released);
    key->setExtraAttr(CPushButton::PressedPixmap, keptpictures::key(pressed));
    key->setExtraAttr(CPushButton::ReleasedPixmap, released);
    key->setExtraAttr(CPushButton::SelectedPixmap, keptpictures::key(following(pressed, 2)));
    key->setExtraAttr(CPushButton::PressedTextColor, white);
    key->setExtraAttr(CPushButton::ReleasedTextColor, white);
    key->setExtraAttr(CPushButton::SelectedTextColor, QColor(Qt::black));
}

/// Adds \a key, unless it is null, to \a keys, those whose presses \a grid is told of.
void watch(QObject* grid, QList<CKeyButton*>* keys, CKeyButton* key)
{
    if (!key)
        return;
    keys->append(key);
    key->installEventFilter(grid);
}

/// The first of \a keys with that \a code; null when there is none.
CKeyButton* keyOf(const QList<CKeyButton*>& keys, int code)
{
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->key() == code)
            return keys.at(i);
    }
    return 0;
}

/// Moves the selection of a grid to \a key. Null only takes it away from the \a selected key, which
/// stays recorded, wanted so.
void select(CKeyButton** selected, CKeyButton** current, CKeyButton* key)
{
    if (*selected)
        (*selected)->setSelected(false);
    *current = key;
    if (!key)
        return;
    key->setSelected(true);
    *selected = key;
}

} // namespace keygrid
