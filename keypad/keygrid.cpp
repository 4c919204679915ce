#include "keypad/keygrid_p.h"

#include "keypad/abstractkeypad.h"
#include "keypad/keybutton.h"
#include "style/keptpictures_p.h"
#include "style/table_p.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
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

CKeyButton* newKey(const Key& row, QWidget* grid)
{
    CKeyButton* const key = new CKeyButton(grid);
    key->setFixedSize(row.width, row.height);
    if (row.code == Qt::Key_unknown)
        setUpBlankKey(key);
    else
        setUpKey(key, row);
    return key;
}

} // namespace

/// No keys yet. \a grid owns the object.
Keys::Keys(CAbstractKeyPad* grid) : m_grid(grid), m_selected(nullptr)
{
}

Keys::~Keys()
{
}

/// Lays out the keys of \a plan on the grid, whose children they become in the order of the table,
/// and watches all but the blank ones. Selects the key that accepts the entry, as a new grid shows
/// it. Does nothing on a grid that has its keys.
void Keys::build(const Plan& plan)
{
    if (m_grid->layout())
        return;
    QVBoxLayout* const column = new QVBoxLayout(m_grid);
    column->setContentsMargins(plan.leftMargin, plan.topMargin, plan.rightMargin,
                               plan.bottomMargin);
    if (plan.spacing != inheritedSpacing)
        column->setSpacing(plan.spacing);
    const Key* next = plan.keys;
    for (int i = 0; i < plan.rowCount; ++i) {
        addRow(column, next, plan.rows[i]);
        next += plan.rows[i].keyCount;
    }
    m_selected = withCode(Key_Apply);
    m_selected->setSelected(true);
}

/// Adds \a row, of the next of \a keys, to \a column.
void Keys::addRow(QVBoxLayout* column, const Key* keys, const Row& row)
{
    QHBoxLayout* const layout = new QHBoxLayout;
    if (row.spacing != inheritedSpacing)
        layout->setSpacing(row.spacing);
    if (row.centered)
        layout->setAlignment(Qt::AlignCenter);
    column->addLayout(layout);
    layout->addStretch();
    for (int i = 0; i < row.keyCount; ++i) {
        CKeyButton* const key = newKey(keys[i], m_grid);
        if (keys[i].code != Qt::Key_unknown)
            append(key);
        layout->addWidget(key);
    }
    layout->addStretch();
}

/// Watches \a key, unless it is null.
void Keys::append(CKeyButton* key)
{
    if (!key)
        return;
    m_keys.append(key);
    key->installEventFilter(m_grid);
}

/// The keys that are watched, in the order in which they were added.
const QList<CKeyButton*>& Keys::all() const
{
    return m_keys;
}

/// The first key with that \a code; null when there is none.
CKeyButton* Keys::withCode(int code) const
{
    for (int i = 0; i < m_keys.size(); ++i) {
        if (m_keys.at(i)->key() == code)
            return m_keys.at(i);
    }
    return nullptr;
}

/// The event filter of the grid. The press goes on to the key, unless a slot has deleted that. Qt
/// delivers the second of two quick touches as a double click, which is no press here: the key
/// makes one of it.
bool Keys::filter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const QPointer<QObject> receiver(watched); // a slot may delete the grid and this object, too
    press(qobject_cast<CKeyButton*>(watched));
    return !receiver;
}

/// Selects \a key, lets it act on the grid, and reports it. Null deselects only.
void Keys::press(CKeyButton* key)
{
    if (key && !accepts(key))
        return;
    select(key);
    if (!key)
        return;
    const QString text = act(key);
    Q_EMIT m_grid->currentKeyChanged(text, key->key());
}

/// Whether a press of \a key counts; each does, also of a disabled key.
bool Keys::accepts(const CKeyButton* key) const
{
    Q_UNUSED(key);
    return true;
}

/// What the pressed \a key does to the grid, here nothing. Returns the text to report: what the
/// key shows.
QString Keys::act(CKeyButton* key)
{
    return key->getText();
}

/// Moves the selection to \a key. Deliberate: null only takes it away from the selected key, which
/// stays recorded.
void Keys::select(CKeyButton* key)
{
    if (m_selected)
        m_selected->setSelected(false);
    if (!key)
        return;
    key->setSelected(true);
    m_selected = key;
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

} // namespace keygrid
