#ifndef CWIDGET_TESTS_EXTREMES_KEYPADTYPER_H
#define CWIDGET_TESTS_EXTREMES_KEYPADTYPER_H

#include <QTimer>

/// While it lives, types a digit into each keypad that opens, and applies it.
class KeypadTyper : public QObject
{
    Q_OBJECT

public:
    KeypadTyper();

private Q_SLOTS:
    void type();

private:
    QTimer m_timer;
};

#endif
