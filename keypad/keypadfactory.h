#ifndef CWIDGET_KEYPAD_KEYPADFACTORY_H
#define CWIDGET_KEYPAD_KEYPADFACTORY_H

#include "../style/global.h"

#include <QMetaType>
#include <QObject>
#include <QString>

class QWidget;

/// Asks the user for a text: pops up a keypad over the active window and waits until it closes.
/// However it is closed, the caller gets what stands in its entry field.
class CWIDGET_EXPORT CKeyPadFactory
{
    Q_GADGET
    Q_ENUMS(KeyPadType)

public:
    /// Kinds of keypads. Other values are taken as SKP_GENERAL.
    enum KeyPadType
#ifndef Q_MOC_RUN // Qt 4's reads no underlying type
        : int
#endif
    {
        SKP_GENERAL = 0, ///< any text
        SKP_HEX = 1,     ///< hexadecimal numbers
        SKP_BINARY = 2,  ///< binary numbers
        SKP_DECIMAL = 3, ///< decimal numbers
        SKP_FLOAT = 4    ///< numbers with a point and without a sign
    };

    CKeyPadFactory() = delete;

    static QString accessKeyPad(const QString& title, const QString& text, KeyPadType type, int min,
                                int max, QWidget* parent = nullptr);
    static QString accessKeyPad(const QString& title, const QString& text, KeyPadType type,
                                const QString& min, const QString& max, QWidget* parent = nullptr);
    static QString accessKeyPad(const QString& title, const QString& text, KeyPadType type,
                                QWidget* parent = nullptr);
};

Q_DECLARE_METATYPE(CKeyPadFactory::KeyPadType)

#endif
