#include "support/keypadmodel.h"

#include "keypad/abstractkeypad.h"

#include <limits>

namespace testing
{

namespace
{

const int maximumDigits = 40;

ExpectedKeys keysOfType(CKeyPadFactory::KeyPadType type)
{
    if (type == CKeyPadFactory::SKP_GENERAL)
        return generalKeys();
    return type == CKeyPadFactory::SKP_HEX ? hexKeys() : numericKeys();
}

bool isLetterCode(int code)
{
    return code >= 0x41 && code <= 0x5a;
}

bool isDigitCode(int code)
{
    return code >= 0x30 && code <= 0x39;
}

} // namespace

// ---- GridModel

GridModel::GridModel(CKeyPadFactory::KeyPadType type)
    : m_type(type),
      m_keys(keysOfType(type)),
      m_caps(false),
      m_symbols(false),
      m_shifted(false),
      m_selected(indexOf(Key_Apply))
{
}

bool GridModel::press(int index)
{
    if (!isEnabled(index))
        return false;
    const int code = m_keys.at(index).code;
    const bool general = m_type == CKeyPadFactory::SKP_GENERAL;
    m_selected = index;
    if (general && code == Qt::Key_CapsLock && !m_symbols)
        m_caps = !m_caps;
    if (general && code == Key_Symbol)
        m_symbols = !m_symbols;
    m_reportedText = shownText(index);
    if (m_shifted)
        m_reportedText = m_caps ? m_reportedText.toLower() : m_reportedText.toUpper();
    m_shifted = general && code == Qt::Key_Shift;
    return true;
}

QString GridModel::reportedText() const
{
    return m_reportedText;
}

int GridModel::reportedCode() const
{
    return m_keys.at(m_selected).code;
}

int GridModel::indexOf(int code) const
{
    for (int i = 0; i < m_keys.size(); ++i) {
        if (m_keys.at(i).code == code)
            return i;
    }
    qFatal("no key of code 0x%x", code);
    return -1;
}

int GridModel::keyCount() const
{
    return m_keys.size();
}

bool GridModel::isEnabled(int index) const
{
    const int code = m_keys.at(index).code;
    if (code == Qt::Key_unknown)
        return false;
    if (m_type == CKeyPadFactory::SKP_BINARY)
        return !isDigitCode(code) || code <= 0x31;
    return m_type != CKeyPadFactory::SKP_FLOAT || code != Key_PlusMinus;
}

QString GridModel::shownText(int index) const
{
    const ExpectedKey& key = m_keys.at(index);
    if (m_type == CKeyPadFactory::SKP_FLOAT && key.code == Key_PlusMinus)
        return QString();
    if (m_type != CKeyPadFactory::SKP_GENERAL || !isLetterCode(key.code))
        return key.text;
    if (m_symbols)
        return key.symbol;
    return m_caps ? QString(QLatin1Char(key.code)) : key.text;
}

QColor GridModel::textColor(int index) const
{
    const int code = m_keys.at(index).code;
    if (code == Qt::Key_unknown)
        return Qt::black;
    if (isDigitCode(code) && !isEnabled(index))
        return Qt::gray;
    return isSelected(index) ? Qt::black : Qt::white;
}

bool GridModel::isSelected(int index) const
{
    return index == m_selected;
}

bool GridModel::caps() const
{
    return m_caps;
}

bool GridModel::symbols() const
{
    return m_symbols;
}

// ---- numbers

int numberOf(const QString& text, int base, bool* ok)
{
    const bool negative = text.startsWith(QLatin1Char('-'));
    const QString digits = negative ? text.mid(1) : text;
    *ok = !digits.isEmpty() && digits.size() <= maximumDigits;
    double value = 0.0; // exact up to 2^53, and large enough for every text
    for (int i = 0; *ok && i < digits.size(); ++i) {
        const int digit = QString("0123456789abcdef").indexOf(digits.at(i).toLower());
        *ok = digit >= 0 && digit < base;
        value = value * base + digit;
    }
    if (negative)
        value = -value;
    *ok =
        *ok && value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return *ok ? static_cast<int>(value) : 0;
}

QString writtenNumber(int value, int base)
{
    const bool negative = value < 0;
    quint32 rest = negative ? 0u - static_cast<quint32>(value) : static_cast<quint32>(value);
    QString text;
    do {
        text.prepend(QLatin1Char("0123456789abcdef"[rest % base]));
        rest /= base;
    } while (rest > 0);
    return negative ? QLatin1Char('-') + text : text;
}

// ---- EntryModel

EntryModel::EntryModel(CKeyPadFactory::KeyPadType type, const QString& text)
    : m_type(type), m_text(text), m_cursor(text.size()), m_range(false), m_min(0), m_max(0)
{
}

void EntryModel::setRange(int min, int max)
{
    m_range = true;
    m_min = min;
    m_max = max;
}

void EntryModel::setCursor(int position)
{
    m_cursor = position;
}

QString EntryModel::text() const
{
    return m_text;
}

int EntryModel::cursor() const
{
    return m_cursor;
}

bool EntryModel::apply(const QString& text, int code)
{
    if (code == Key_Apply)
        return validate();
    if (code == Qt::Key_Delete)
        remove(m_cursor);
    else if (code == Qt::Key_Backspace)
        remove(m_cursor - 1);
    else if (code == Key_DelAll)
        replace(QString());
    else if (code == Qt::Key_Space)
        insert(QString(QLatin1Char(' ')));
    else if (code == Key_PlusMinus)
        replace(m_text.startsWith(QLatin1Char('-')) ? m_text.mid(1) : QLatin1Char('-') + m_text);
    else if (isInserted(text, code))
        insert(text);
    return false;
}

int EntryModel::base() const
{
    const int bases[] = {0, 16, 2, 10, 0};
    return bases[m_type];
}

bool EntryModel::isInserted(const QString& text, int code) const
{
    const bool numeral =
        !text.isEmpty() && text.at(0) >= QLatin1Char('0') && text.at(0) <= QLatin1Char('9');
    switch (m_type) {
    case CKeyPadFactory::SKP_GENERAL:
        return code != Qt::Key_Shift && code != Qt::Key_CapsLock && code != Key_Symbol;
    case CKeyPadFactory::SKP_HEX:
        return isDigitCode(code) || (code >= 0x41 && code <= 0x46);
    case CKeyPadFactory::SKP_BINARY:
        return numeral && (code == 0x30 || code == 0x31);
    default:
        return numeral || text.startsWith(QLatin1Char('.'));
    }
}

bool EntryModel::validate()
{
    if (!m_range || base() == 0)
        return true;
    bool ok = false;
    const int value = numberOf(m_text, base(), &ok);
    if (base() == 10)
        ok = true;
    if (ok && value >= m_min && value <= m_max)
        return true;
    replace(writtenNumber(ok && value >= m_min ? m_max : m_min, base()));
    return false;
}

void EntryModel::insert(const QString& text)
{
    m_text.insert(m_cursor, text);
    m_cursor += text.size();
}

void EntryModel::remove(int position)
{
    if (position < 0 || position >= m_text.size())
        return;
    m_text.remove(position, 1);
    m_cursor = position;
}

void EntryModel::replace(const QString& text)
{
    m_text = text;
    m_cursor = text.size();
}

// ---- CheckedGrid

CheckedGrid::CheckedGrid(CAbstractKeyPad* grid, CKeyPadFactory::KeyPadType type)
    : m_keys(keysOf(grid)), m_model(type), m_reports(0), m_code(0)
{
    connect(grid, SIGNAL(currentKeyChanged(QString, int)), SLOT(note(QString, int)));
    if (m_keys.size() != m_model.keyCount())
        qFatal("%d keys instead of %d", static_cast<int>(m_keys.size()), m_model.keyCount());
}

const GridModel& CheckedGrid::model() const
{
    return m_model;
}

void CheckedGrid::note(const QString& text, int code)
{
    ++m_reports;
    m_text = text;
    m_code = code;
}

bool CheckedGrid::wasReported() const
{
    return m_reports > 0;
}

QString CheckedGrid::touch(int index)
{
    CKeyButton* key = m_keys.at(index);
    m_reports = 0;
    const QPoint middle = key->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, middle, key->mapToGlobal(middle), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, middle, key->mapToGlobal(middle),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(key, &press);
    QCoreApplication::sendEvent(key, &release);
    const QString what = differenceOfReport(m_model.press(index));
    return what.isEmpty() ? differenceOfKeys() : what;
}

QString CheckedGrid::differenceOfReport(bool expected) const
{
    if (m_reports != (expected ? 1 : 0))
        return QString::fromLatin1("%1 reports").arg(m_reports);
    if (!expected || (m_text == m_model.reportedText() && m_code == m_model.reportedCode()))
        return QString();
    return QString::fromLatin1("'%1' (0x%2) reported instead of '%3' (0x%4)")
        .arg(m_text)
        .arg(m_code, 0, 16)
        .arg(m_model.reportedText())
        .arg(m_model.reportedCode(), 0, 16);
}

QString CheckedGrid::differenceOfKeys() const
{
    for (int i = 0; i < m_keys.size(); ++i) {
        CKeyButton* key = m_keys.at(i);
        const bool alike = key->getText() == m_model.shownText(i) &&
                           key->isEnabled() == m_model.isEnabled(i) &&
                           key->isSelected() == m_model.isSelected(i) &&
                           key->getTextColor() == m_model.textColor(i);
        if (!alike)
            return QString::fromLatin1("key %1 shows '%2' instead of '%3', or is in another state")
                .arg(i)
                .arg(key->getText(), m_model.shownText(i));
    }
    return QString();
}

} // namespace testing
