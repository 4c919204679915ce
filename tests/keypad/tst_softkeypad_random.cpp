// Random touches of each keypad, compared with the model after each of them.

#include "keypad/abstractkeypad.h"
#include "keypad/keypadedit.h"
#include "support/keypadmodel.h"
#include "support/random.h"

#include <QSignalSpy>
#include <QTextCursor>

using testing::Random;

namespace
{

const int sequences = 10000;
const int sequencesPerKeypad = 250;
const int longestSequence = 8;
const int longestText = 25; // less than a line of the entry field

/// A keypad with its models.
class Session
{
public:
    Session(CKeyPadFactory::KeyPadType type, Random* random)
        : m_random(random),
          m_dialog(type),
          m_edit(m_dialog.findChild<CKeyPadEdit*>()),
          m_grid(m_dialog.findChild<CAbstractKeyPad*>(), type),
          m_entry(type, "10"),
          m_accepted(&m_dialog, SIGNAL(accepted())),
          m_rejected(&m_dialog, SIGNAL(rejected()))
    {
        m_dialog.setText("Title", "10");
        m_dialog.show();
    }

    void chooseRange()
    {
        if (m_random->below(3) == 0)
            return;
        const int min = m_random->below(400) - 200;
        const int max = min + m_random->below(300);
        m_dialog.setRange(min, max);
        m_entry.setRange(min, max);
    }

    /// A few keys, with the cursor somewhere else now and then.
    QString sequence()
    {
        QString what;
        if (m_random->below(4) == 0)
            moveCursor(m_random->below(m_entry.text().size() + 1));
        for (int i = m_random->below(longestSequence) + 1; i > 0 && what.isEmpty(); --i)
            what = step();
        return what;
    }

private:
    QString step()
    {
        const bool full = m_entry.text().size() >= longestText;
        const int index =
            full ? m_grid.model().indexOf(Key_DelAll) : m_random->below(m_grid.model().keyCount());
        QString what = m_grid.touch(index);
        bool closes = false;
        if (m_grid.wasReported())
            closes = m_entry.apply(m_grid.model().reportedText(), m_grid.model().reportedCode());
        return what.isEmpty() ? difference(closes) : what;
    }

    QString difference(bool closes)
    {
        const int position = m_edit->textCursor().position();
        const int accepted = m_accepted.count();
        m_accepted.clear();
        if (accepted != (closes ? 1 : 0) || m_dialog.isVisible() == closes || m_rejected.count())
            return QString::fromLatin1("closed %1 times instead of %2").arg(accepted).arg(closes);
        m_dialog.show();
        if (m_dialog.getInput() != m_entry.text() || position != m_entry.cursor())
            return QString::fromLatin1("'%1', cursor at %2, instead of '%3', cursor at %4")
                .arg(m_dialog.getInput())
                .arg(position)
                .arg(m_entry.text())
                .arg(m_entry.cursor());
        return QString();
    }

    void moveCursor(int position)
    {
        QTextCursor cursor = m_edit->textCursor();
        cursor.setPosition(position);
        m_edit->setTextCursor(cursor);
        m_entry.setCursor(position);
    }

    Random* m_random;
    CSoftKeyPad m_dialog;
    CKeyPadEdit* m_edit;
    testing::CheckedGrid m_grid;
    testing::EntryModel m_entry;
    QSignalSpy m_accepted;
    QSignalSpy m_rejected;
};

} // namespace

class tst_softkeypad_random : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomTouches_data();
    void randomTouches();
};

void tst_softkeypad_random::randomTouches_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<uint>("seed");
    QTest::newRow("general") << 0 << 20240517u;
    QTest::newRow("hexadecimal") << 1 << 977u;
    QTest::newRow("binary") << 2 << 31337u;
    QTest::newRow("decimal") << 3 << 4711u;
    QTest::newRow("float") << 4 << 271828u;
}

void tst_softkeypad_random::randomTouches()
{
    QFETCH(int, type);
    QFETCH(uint, seed);
    Random random(seed);
    for (int done = 0; done < sequences; done += sequencesPerKeypad) {
        Session session(static_cast<CKeyPadFactory::KeyPadType>(type), &random);
        session.chooseRange();
        for (int i = 0; i < sequencesPerKeypad; ++i) {
            const QString what = session.sequence();
            QVERIFY2(what.isEmpty(),
                     qPrintable(QString::fromLatin1("sequence %1: %2").arg(done + i).arg(what)));
        }
    }
}

QTEST_MAIN(tst_softkeypad_random)
#include "tst_softkeypad_random.moc"
