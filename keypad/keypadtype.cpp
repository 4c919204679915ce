#include "keypad/keypadtype_p.h"

#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/numkeypad.h"
#include "style/table_p.h"

namespace keypadtype
{

namespace
{

CAbstractKeyPad* newGenKeyPad()
{
    return new CGenKeyPad;
}

CAbstractKeyPad* newHexKeyPad()
{
    return new CHexKeyPad;
}

template <CNumKeyPad::Mode mode>
CAbstractKeyPad* newNumKeyPad()
{
    return new CNumKeyPad(mode);
}

bool anyKey(const QString&, int)
{
    return true;
}

bool binaryCode(const QString&, int code)
{
    return code == Qt::Key_0 || code == Qt::Key_1;
}

bool decimalCode(const QString&, int code)
{
    return code >= Qt::Key_0 && code <= Qt::Key_9;
}

bool decimalCodeOrPoint(const QString& text, int code)
{
    return decimalCode(text, code) || text == QLatin1String(".");
}

bool hexCode(const QString& text, int code)
{
    return decimalCode(text, code) || (code >= Qt::Key_A && code <= Qt::Key_F);
}

bool binaryDigit(const QString& text, int code)
{
    return text.at(0).isNumber() && binaryCode(text, code);
}

bool digitOrPoint(const QString& text, int)
{
    return text.at(0).isNumber() || text.at(0) == QLatin1Char('.');
}

const Row rows[] = {
    // clang-format off
    {newGenKeyPad,                           0,       anyKey,       anyKey},             // SKP_GENERAL
    {newHexKeyPad,                           16,      hexCode,      hexCode},            // SKP_HEX
    {newNumKeyPad<CNumKeyPad::BinaryMode>,   2,       binaryDigit,  binaryCode},         // SKP_BINARY
    {newNumKeyPad<CNumKeyPad::SignedMode>,   decimal, digitOrPoint, decimalCode},        // SKP_DECIMAL
    {newNumKeyPad<CNumKeyPad::UnsignedMode>, 0,       digitOrPoint, decimalCodeOrPoint}, // SKP_FLOAT
    // clang-format on
};
static_assert(table::count(rows) == CKeyPadFactory::SKP_FLOAT + 1, "each KeyPadType has a row");

} // namespace

/// Whether \a type is one of the enumeration.
bool exists(CKeyPadFactory::KeyPadType type)
{
    return table::has(rows, type);
}

/// The row of \a type; that of SKP_GENERAL for unknown ones.
const Row& row(CKeyPadFactory::KeyPadType type)
{
    return rows[exists(type) ? type : CKeyPadFactory::SKP_GENERAL];
}

} // namespace keypadtype
