#ifndef CWIDGET_KEYPAD_KEYPADTYPE_P_H
#define CWIDGET_KEYPAD_KEYPADTYPE_P_H

#include "keypad/keypadfactory.h"

class CAbstractKeyPad;

// What the types of keypads differ in.
namespace keypadtype
{

/// The base of decimal numbers.
const int decimal = 10;

/// Whether a key is allowed in an entry, by the text that it shows or types and by its code.
typedef bool (*KeyTest)(const QString& text, int code);

struct Row {
    CAbstractKeyPad* (*newGrid)(); // the caller owns it
    int checkedBase;               // of the numbers whose range is checked; 0: none is
    KeyTest takesKey;              // of the grid; the text is not empty
    KeyTest keepsKey;              // of a keyboard
};

bool exists(CKeyPadFactory::KeyPadType type);
const Row& row(CKeyPadFactory::KeyPadType type);

} // namespace keypadtype

#endif
