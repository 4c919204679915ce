#ifndef CWIDGET_TESTS_SUPPORT_KEYPADMODEL_H
#define CWIDGET_TESTS_SUPPORT_KEYPADMODEL_H

// How keypads behave, told a second time and in another way than the library does it: what a key
// shows is a function of the state, what an entry holds a function of what was typed.

#include "keypad/keypadfactory.h"
#include "support/keypads.h"

class CAbstractKeyPad;
class QTextEdit;

namespace testing
{

/// A grid of a keypad.
class GridModel
{
public:
    explicit GridModel(CKeyPadFactory::KeyPadType type);

    /// Presses key number \a index. Returns whether that is reported.
    bool press(int index);
    QString reportedText() const;
    int reportedCode() const;

    int indexOf(int code) const;
    int keyCount() const;
    bool isEnabled(int index) const;
    QString shownText(int index) const;
    QColor textColor(int index) const;
    bool isSelected(int index) const;
    bool caps() const;
    bool symbols() const;

private:
    CKeyPadFactory::KeyPadType m_type;
    ExpectedKeys m_keys;
    bool m_caps;
    bool m_symbols;
    bool m_shifted;
    int m_selected;
    QString m_reportedText;
};

/// The entry of a keypad.
class EntryModel
{
public:
    EntryModel(CKeyPadFactory::KeyPadType type, const QString& text);

    void setRange(int min, int max);
    void setCursor(int position);

    /// Applies a reported key. Returns whether it closes the keypad.
    bool apply(const QString& text, int code);
    QString text() const;
    int cursor() const;

private:
    int base() const;
    bool isInserted(const QString& text, int code) const;
    bool validate();
    void insert(const QString& text);
    void remove(int position);
    void replace(const QString& text);

    CKeyPadFactory::KeyPadType m_type;
    QString m_text;
    int m_cursor;
    bool m_range;
    int m_min;
    int m_max;
};

/// The number that \a text is in \a base; \a ok tells whether it is one of 32 bits.
int numberOf(const QString& text, int base, bool* ok);

/// \a value written in \a base.
QString writtenNumber(int value, int base);

/// Touches the keys of a grid and compares it with its model.
class CheckedGrid : public QObject
{
    Q_OBJECT

public:
    CheckedGrid(CAbstractKeyPad* grid, CKeyPadFactory::KeyPadType type);

    const GridModel& model() const;

    /// Touches key number \a index. Returns what is not as it should be afterwards.
    QString touch(int index);
    bool wasReported() const;

private Q_SLOTS:
    void note(const QString& text, int code);

private:
    QString differenceOfReport(bool expected) const;
    QString differenceOfKeys() const;

    QList<CKeyButton*> m_keys;
    GridModel m_model;
    int m_reports;
    QString m_text;
    int m_code;
};

} // namespace testing

#endif
