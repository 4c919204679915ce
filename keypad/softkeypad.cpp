#include "keypad/softkeypad.h"

#include "keypad/abstractkeypad.h"
#include "keypad/keypadedit.h"
#include "keypad/keypadtype_p.h"
#include "widgets/painting_p.h"

#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextStream>
#include <QVBoxLayout>

namespace
{

const int defaultWidth = 519;
const int defaultHeight = 390;
const int topMargin = 5;
const int sideMargins = 50; // left and right of field and grid together
const int editHeight = 82;
const int gapBelowKeys = 2;

/// \a value in \a base, in lower case and with a minus sign if it is negative, where
/// QString::number() would write two's complement.
QString numberText(int value, int base)
{
    QString text;
    QTextStream stream(&text);
    stream.setIntegerBase(base);
    stream << value;
    stream.flush();
    return text;
}

/// Aligns the cursor's paragraph to the right: as setAlignment() does it, but that also has the
/// whole document laid out once more.
void alignRight(QTextEdit* edit)
{
    QTextBlockFormat format;
    format.setAlignment(Qt::AlignRight);
    QTextCursor cursor = edit->textCursor();
    cursor.mergeBlockFormat(format);
    edit->setTextCursor(cursor);
}

} // namespace

/// A frameless window-modal dialog of 519 x 390 pixels with an empty entry field, no range, and the
/// grid for \a type; an unknown type has the general one.
CSoftKeyPad::CSoftKeyPad(CKeyPadFactory::KeyPadType type, QWidget* parent)
    : QDialog(parent),
      m_edit(nullptr),
      m_gridRow(nullptr),
      m_grid(nullptr),
      m_type(type),
      m_rangeSet(false),
      m_minimum(0),
      m_maximum(0)
{
    initialize();
    setSize(defaultWidth, defaultHeight);
}

/// The same with the general grid.
CSoftKeyPad::CSoftKeyPad(QWidget* parent) : CSoftKeyPad(CKeyPadFactory::SKP_GENERAL, parent)
{
}

CSoftKeyPad::~CSoftKeyPad()
{
}

/// Builds field and grid, once: further calls do nothing. Returns true.
bool CSoftKeyPad::initialize()
{
    if (m_edit)
        return true;
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::WindowModal);
    QVBoxLayout* column = new QVBoxLayout(this);
    column->setContentsMargins(0, topMargin, 0, 0);
    m_edit = new CKeyPadEdit(this);
    m_edit->setSKPType(m_type);
    QHBoxLayout* editRow = new QHBoxLayout;
    editRow->addWidget(m_edit);
    column->addLayout(editRow);
    m_gridRow = new QHBoxLayout;
    column->addLayout(m_gridRow);
    addGrid();
    return true;
}

/// Fixes the size of the dialog, in pixels. Field and grid leave 50 pixels of its width free; the
/// grid gets all of its height.
void CSoftKeyPad::setSize(int width, int height)
{
    setFixedSize(width, height);
    const int inner = qMax(sideMargins, width) - sideMargins;
    m_edit->setFixedSize(inner, editHeight);
    m_grid->setSize(inner, height);
    keepKeysInside();
}

/// The type of the grid.
CKeyPadFactory::KeyPadType CSoftKeyPad::skpType() const
{
    return m_type;
}

/// Replaces the grid by that of another type; an unknown type, or the one it has, does nothing.
/// Deliberate: the field goes on filtering a keyboard as before, and the grid has its own default
/// size.
void CSoftKeyPad::setSKPType(CKeyPadFactory::KeyPadType type)
{
    if (!keypadtype::exists(type) || type == m_type)
        return;
    blockSignals(true);
    m_gridRow->removeWidget(m_grid);
    m_grid->disconnect();
    m_grid->hide(); // an event loop within that of the caller does not delete it yet
    m_grid->deleteLater();
    m_type = type;
    addGrid();
    keepKeysInside();
    blockSignals(false);
}

/// Makes validate() check for a number from \a min to \a max.
void CSoftKeyPad::setRange(int min, int max)
{
    m_rangeSet = true;
    m_minimum = min;
    m_maximum = max;
}

/// Makes validate() check for a number, and stores the bounds. Deliberate: the check is against the
/// integer bounds all the same, which are 0 and 0 until they are set.
void CSoftKeyPad::setRange(const QString& min, const QString& max)
{
    m_rangeSet = true;
    m_minimumText = min;
    m_maximumText = max;
}

/// Sets the title, inserts \a text into what the field holds, and makes it the last good text.
void CSoftKeyPad::setText(const QString& title, const QString& text)
{
    m_lastGoodText = text;
    m_edit->setText(title, text);
}

/// The entry.
QString CSoftKeyPad::getInput() const
{
    return m_edit->toPlainText();
}

/// Empties the entry field.
void CSoftKeyPad::clearInput()
{
    m_edit->clear();
    alignRight(m_edit);
}

/// Whether the entry is a number of the range, or there is no range, or the type has none. If not,
/// the nearer bound stands in the field afterwards; the minimum when the entry is no number at all.
bool CSoftKeyPad::validate() const
{
    const int base = keypadtype::row(m_type).checkedBase;
    if (!m_rangeSet || base == 0)
        return true;
    bool converted = false;
    const int value = getInput().toInt(&converted, base);
    if (base == keypadtype::decimal)
        converted = true; // Deliberate: a text that is no decimal number counts as 0
    if (converted && m_minimum <= value && value <= m_maximum)
        return true;
    const int bound = !converted || value < m_minimum ? m_minimum : m_maximum;
    m_edit->setPlainText(numberText(bound, base));
    alignRight(m_edit);
    m_edit->moveCursor(QTextCursor::EndOfLine);
    return false;
}

/// Does with the entry what the key \a keyCode, showing \a text, stands for.
void CSoftKeyPad::changedkey(const QString& text, int keyCode)
{
    switch (keyCode) {
    case Qt::Key_CapsLock:
    case Qt::Key_Shift:
    case Key_Symbol:
        break;
    case Qt::Key_Delete:
        m_edit->textCursor().deleteChar();
        break;
    case Key_DelAll:
        clearInput();
        break;
    case Qt::Key_Backspace:
        m_edit->textCursor().deletePreviousChar();
        break;
    case Key_Apply:
        if (validate())
            accept();
        break;
    case Qt::Key_Space:
        m_edit->textCursor().insertText(QLatin1String(" "));
        break;
    case Key_PlusMinus:
        toggleSign();
        break;
    default:
        insertKey(text, keyCode);
    }
}

/// For applications: checks the entry, which becomes the last good text or else is replaced by it.
/// Deliberate: not by the bound that validate() chose.
void CSoftKeyPad::changeText()
{
    if (validate()) {
        m_lastGoodText = getInput();
        return;
    }
    const bool blocked = m_edit->blockSignals(true);
    m_edit->setPlainText(m_lastGoodText);
    m_edit->blockSignals(blocked);
}

/// Paints the dialog black.
void CSoftKeyPad::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    painting::markGround(this, Qt::black);
    QPainter painter(this);
    painting::drawFill(&painter, rect(), Qt::black, event->region());
}

/// Adds the grid of the current type below the field.
void CSoftKeyPad::addGrid()
{
    m_grid = keypadtype::row(m_type).newGrid();
    m_gridRow->addWidget(m_grid);
    connect(m_grid, SIGNAL(currentKeyChanged(QString, int)), this, SLOT(changedkey(QString, int)));
}

/// The grid stands below the field and reaches beyond the lower edge of the dialog. The grids for
/// numbers have no keys there; of the others that part is kept free.
void CSoftKeyPad::keepKeysInside()
{
    const int gridTop = topMargin + editHeight + layout()->spacing();
    const int hidden = gridTop + m_grid->height() - height() + gapBelowKeys;
    const int free = m_grid->layout()->contentsMargins().bottom();
    m_grid->setContentsMargins(0, 0, 0, qMax(0, hidden - free));
}

/// Inserts \a text, if an entry of the current type takes it from the key \a keyCode.
void CSoftKeyPad::insertKey(const QString& text, int keyCode)
{
    if (text.isEmpty() || !keypadtype::row(m_type).takesKey(text, keyCode))
        return;
    m_edit->textCursor().insertText(text);
    alignRight(m_edit);
}

/// Takes a leading minus sign away, or puts one there.
void CSoftKeyPad::toggleSign()
{
    const QString minus = QLatin1String("-");
    const QString input = getInput();
    if (input.isEmpty())
        m_edit->textCursor().insertText(minus);
    else
        m_edit->setPlainText(input.startsWith(minus) ? input.mid(1) : minus + input);
    m_edit->moveCursor(QTextCursor::EndOfLine);
    alignRight(m_edit);
}
