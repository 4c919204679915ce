#include "support/signaltools.h"

SignalTap::SignalTap(QStringList* log, const char* name, QObject* sender, const char* signal)
    : m_log(log), m_name(QString::fromLatin1(name))
{
    const bool isText = QByteArray(signal).contains("QString");
    if (!connect(sender, signal, this, isText ? SLOT(takeText(QString)) : SLOT(takeNumber(int))))
        qFatal("no signal %s", signal);
}

void SignalTap::takeText(const QString& text)
{
    m_log->append(m_name + QLatin1Char('(') + text + QLatin1Char(')'));
}

void SignalTap::takeNumber(int number)
{
    takeText(QString::number(number));
}

Reaction::Reaction(QObject* sender, const char* signal, const std::function<void()>& action)
    : m_action(action)
{
    if (!connect(sender, signal, this, SLOT(react())))
        qFatal("no signal %s", signal);
}

void Reaction::react()
{
    m_action();
}

QStringList numberedTexts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::fromLatin1("item %1").arg(i));
    return texts;
}

QList<int> numbers(int first, int last)
{
    QList<int> result;
    for (int i = first; i <= last; ++i)
        result.append(i);
    return result;
}
