#ifndef CWIDGET_TESTS_DOCS_FROMQT_H
#define CWIDGET_TESTS_DOCS_FROMQT_H

#include "support/testing.h"

#include <CKeyPadEdit>
#include <CSoftKeyPad>
#include <QTimer>

// Rows of docs/from-qt.md: each is a function of one of the test programs.
namespace fromqt
{

/// A row, and the function that tests it.
struct Row {
    const char* section;
    const char* what;
    const char* test;
};

// The sections that each program tests.
const char controls[] = "CPushButton,CCheckBox,CLineEdit,CLabel";
const char containers[] = "CComboBox,CProgressBar,CPageWidget,CPageListWidget,CDialog and "
                          "CSoftKeyPad,CGraphicsView,CWidget";

inline QStringList texts(const char* commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(QLatin1Char(','));
}

/// The rows of the page's tables in the given \a sections, as section and first cell.
inline QStringList documentedRows(const QStringList& sections)
{
    QStringList all;
    QString section;
    const QStringList lines =
        QString::fromUtf8(testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/docs/from-qt.md")))
            .split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i);
        if (line.startsWith(QLatin1String("## ")))
            section = line.mid(3).section(QLatin1Char(','), 0, 0);
        const QString cell = line.section(QLatin1Char('|'), 1, 1).trimmed();
        if (line.startsWith(QLatin1String("| ")) && cell != QLatin1String("What") &&
            sections.contains(section))
            all.append(section + QLatin1String(": ") + cell);
    }
    return all;
}

/// The sections of the page that have a table of rows.
inline QStringList documentedSections()
{
    QStringList all;
    const QStringList lines =
        QString::fromUtf8(testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/docs/from-qt.md")))
            .split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(QLatin1String("## ")))
            all.append(lines.at(i).mid(3).section(QLatin1Char(','), 0, 0));
    }
    return all;
}

/// The same of a program's table of rows; a row whose function \a program lacks is empty.
template <size_t count>
QStringList testedRows(const Row (&rows)[count], const QObject* program)
{
    QStringList all;
    for (size_t i = 0; i < count; ++i) {
        const QByteArray slot = QByteArray(rows[i].test) + "()";
        const bool found = program->metaObject()->indexOfSlot(slot.constData()) >= 0;
        all.append(found ? QLatin1String(rows[i].section) + QLatin1String(": ") +
                               QLatin1String(rows[i].what)
                         : QString());
    }
    return all;
}

/// Closes the keypad that a touch is about to open, after entering \a text.
class KeypadCloser : public QObject
{
    Q_OBJECT

public:
    explicit KeypadCloser(const QString& text = QString(), bool accept = false)
        : m_text(text), m_accept(accept), m_closed(0)
    {
        QTimer::singleShot(0, this, SLOT(close()));
    }

    int closed() const
    {
        return m_closed;
    }

private Q_SLOTS:
    void close()
    {
        CSoftKeyPad* const keypad = qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget());
        if (!keypad)
            return;
        ++m_closed;
        if (!m_text.isEmpty())
            keypad->findChild<CKeyPadEdit*>()->setPlainText(m_text);
        keypad->done(m_accept ? QDialog::Accepted : QDialog::Rejected);
    }

private:
    QString m_text;
    bool m_accept;
    int m_closed;
};

} // namespace fromqt

#endif
