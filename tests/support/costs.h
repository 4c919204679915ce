#ifndef CWIDGET_TESTS_SUPPORT_COSTS_H
#define CWIDGET_TESTS_SUPPORT_COSTS_H

#include "support/testing.h"

#include <QApplication>
#include <QStringList>

namespace testing
{

/// How many events of one type all widgets together may get. Where at least one must come, the test
/// also says that there is something to count.
struct Cost {
    const char* name;
    QEvent::Type type;
    int least;
    int most;
};

/// Lets the event loop run until nothing is left to do.
inline void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Empty when \a action costs what \a costs say, until nothing is left to do; else what does not.
template <typename Action, size_t count>
QString excess(const Cost (&costs)[count], Action action)
{
    settle();
    QList<EventCounter*> counters;
    for (size_t i = 0; i < count; ++i)
        counters.append(new EventCounter(qApp, costs[i].type));
    action();
    settle();
    QStringList found;
    for (size_t i = 0; i < count; ++i) {
        const int events = counters.at(static_cast<int>(i))->count();
        if (events < costs[i].least || events > costs[i].most)
            found.append(QString::fromLatin1("%1: %2 instead of %3 to %4")
                             .arg(QLatin1String(costs[i].name))
                             .arg(events)
                             .arg(costs[i].least)
                             .arg(costs[i].most));
    }
    qDeleteAll(counters);
    return found.join(QLatin1String("; "));
}

} // namespace testing

/// Fails the running test where \a action does not cost what \a costs say.
#define CWIDGET_VERIFY_COSTS(costs, action)                                                        \
    do {                                                                                           \
        const QString found = testing::excess(costs, action);                                      \
        QVERIFY2(found.isEmpty(), qPrintable(found));                                              \
    } while (false)

#endif
