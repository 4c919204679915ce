#ifndef CWIDGET_KEYPAD_KEYCODES_H
#define CWIDGET_KEYPAD_KEYCODES_H

/// Codes of the keys that only keypads have, above those of Qt. All other keys carry Qt's codes.
enum KeyPadKey : int {
    Key_Symbol = 0x2000009,   ///< switches the general keypad to its symbols and back
    Key_Apply = 0x200000a,    ///< checks and accepts the entry
    Key_Point = 0x200000b,    ///< the decimal point
    Key_DelAll = 0x200000c,   ///< clears the entry
    Key_PlusMinus = 0x200000d ///< puts a minus sign before the entry, or takes it away
};

#endif
