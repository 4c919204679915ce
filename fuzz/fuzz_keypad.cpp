// A keypad under any fingers and any keyboard: what it accepts where a range is set is a number of
// that range.

#include "fuzzing.h"

#include "keypad/keybutton.h"
#include "keypad/keypadedit.h"
#include "keypad/softkeypad.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextCursor>

namespace
{

const int mostSteps = 200;

/// The base of the numbers of a keypad; 0 where a range means nothing.
int baseOf(CKeyPadFactory::KeyPadType type)
{
    switch (type) {
    case CKeyPadFactory::SKP_HEX:
        return 16;
    case CKeyPadFactory::SKP_BINARY:
        return 2;
    case CKeyPadFactory::SKP_DECIMAL:
        return 10;
    default:
        return 0;
    }
}

class Session
{
public:
    explicit Session(FuzzedDataProvider* data)
        : m_data(data),
          m_type(static_cast<CKeyPadFactory::KeyPadType>(data->ConsumeIntegralInRange<int>(-1, 5))),
          m_dialog(m_type),
          m_edit(m_dialog.findChild<CKeyPadEdit*>()),
          m_keys(m_dialog.findChildren<CKeyButton*>()),
          m_hasRange(data->ConsumeBool()),
          m_min(data->ConsumeIntegral<int>()),
          m_max(data->ConsumeIntegral<int>())
    {
        m_dialog.setText(fuzzing::text(data, 20), fuzzing::text(data, 60));
        if (m_hasRange)
            m_dialog.setRange(m_min, m_max);
        m_dialog.show();
    }

    void run()
    {
        for (int i = 0; i < mostSteps && m_data->remaining_bytes() > 0; ++i) {
            step();
            if (!m_dialog.isVisible())
                close();
        }
        fuzzing::render(&m_dialog);
    }

private:
    void step()
    {
        switch (m_data->ConsumeIntegralInRange<int>(0, 9)) {
        case 0:
            type();
            break;
        case 1:
            moveCursor();
            break;
        default: // fingers are what it is for
            fuzzing::touch(m_keys.at(m_data->ConsumeIntegralInRange<int>(0, m_keys.size() - 1)));
        }
    }

    void type()
    {
        const int code =
            m_data->ConsumeBool()
                ? m_data->ConsumeIntegralInRange<int>(0x20, 0xff)
                : m_data->ConsumeIntegralInRange<int>(Qt::Key_Escape, Qt::Key_PageDown);
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, fuzzing::text(m_data, 2));
        QApplication::sendEvent(m_edit, &press);
    }

    void moveCursor()
    {
        const int last = m_edit->document()->characterCount() - 1;
        QTextCursor cursor = m_edit->textCursor();
        cursor.setPosition(m_data->ConsumeIntegralInRange<int>(0, last));
        cursor.setPosition(m_data->ConsumeIntegralInRange<int>(0, last),
                           m_data->ConsumeBool() ? QTextCursor::KeepAnchor
                                                 : QTextCursor::MoveAnchor);
        m_edit->setTextCursor(cursor);
    }

    void close()
    {
        if (m_dialog.result() == QDialog::Accepted && m_hasRange && baseOf(m_type) != 0)
            fuzzing::require(isInRange(), "what is accepted is of the range");
        m_dialog.show();
    }

    bool isInRange() const
    {
        bool ok = false;
        const int value = m_dialog.getInput().toInt(&ok, baseOf(m_type));
        if (!ok && baseOf(m_type) == 10)
            return m_min <= 0 && m_max >= 0; // what is no number counts as 0
        return ok && value >= m_min && value <= m_max;
    }

    FuzzedDataProvider* m_data;
    CKeyPadFactory::KeyPadType m_type;
    CSoftKeyPad m_dialog;
    CKeyPadEdit* m_edit;
    QList<CKeyButton*> m_keys;
    bool m_hasRange;
    int m_min;
    int m_max;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Session(&data).run();
    return 0;
}
