#ifndef CWIDGET_TESTS_SUPPORT_SIGNALTOOLS_H
#define CWIDGET_TESTS_SUPPORT_SIGNALTOOLS_H

#include <QObject>
#include <QStringList>
#include <functional>

/// Writes every delivery of one signal, with a text or a number, into a log that it shares with
/// others, as "name(argument)".
class SignalTap : public QObject
{
    Q_OBJECT

public:
    SignalTap(QStringList* log, const char* name, QObject* sender, const char* signal);

public Q_SLOTS:
    void takeText(const QString& text);
    void takeNumber(int number);

private:
    QStringList* m_log;
    QString m_name;
};

/// Does something whenever a signal comes.
class Reaction : public QObject
{
    Q_OBJECT

public:
    Reaction(QObject* sender, const char* signal, const std::function<void()>& action);

public Q_SLOTS:
    void react();

private:
    std::function<void()> m_action;
};

/// The texts "item 0", "item 1" and so on.
QStringList numberedTexts(int count);

/// The numbers from \a first up to \a last.
QList<int> numbers(int first, int last);

#endif
