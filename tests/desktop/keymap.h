#ifndef CWIDGET_TESTS_DESKTOP_KEYMAP_H
#define CWIDGET_TESTS_DESKTOP_KEYMAP_H

#include "gallerywindow.h"

#include "keypad/keybutton.h"
#include "keypad/keycodes.h"
#include "keypad/softkeypad.h"
#include "listmap.h"

#include <QLayout>

/// A keypad like the one that a panel opens in its middle, to know where its keys are.
class KeyMap
{
public:
    explicit KeyMap(CKeyPadFactory::KeyPadType type) : m_keypad(type)
    {
        m_keypad.setAttribute(Qt::WA_DontShowOnScreen);
        m_keypad.show();
        m_keypad.layout()->activate();
    }

    /// The middle of a key in the panel, by its code or, without one, by its text; null when there
    /// is no such key.
    QPoint key(const QString& text, int code = 0) const
    {
        const QList<CKeyButton*> keys = m_keypad.findChildren<CKeyButton*>();
        for (int i = 0; i < keys.size(); ++i) {
            CKeyButton* key = keys.at(i);
            if (code ? key->key() == code : key->getKeyText() == text)
                return origin() + key->mapTo(&m_keypad, key->rect().center());
        }
        return QPoint();
    }

    QPoint key(int code) const
    {
        return key(QString(), code);
    }

    /// Waits for the keypad: its black background, which a window may have before it is painted,
    /// and the green of the key that is selected first.
    bool waitUntilShown(const GalleryWindow& window) const
    {
        const QColor selectedApply(0x5F, 0xD0, 0x8D);
        return window.waitForColor(origin() + QPoint(3, 200), Qt::black) &&
               window.waitForColor(key(Key_Apply) - QPoint(35, 0), selectedApply);
    }

private:
    QPoint origin() const
    {
        return listmap::panelCenter - QPoint(m_keypad.width() / 2, m_keypad.height() / 2);
    }

    CSoftKeyPad m_keypad;
};

#endif
