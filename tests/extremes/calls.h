#ifndef CWIDGET_TESTS_EXTREMES_CALLS_H
#define CWIDGET_TESTS_EXTREMES_CALLS_H

#include "extremes/extremevalues.h"

#include <QObject>
#include <functional>

namespace extremes
{

/// One call of a function, with certain arguments.
struct Call {
    QByteArray owner; // the class that has the function
    QByteArray text;  // for example "CLineEdit::setRange(-1,0)"
    std::function<void(QObject*)> make;
};

/// What the table of functions has.
struct Table {
    QList<Call> calls;
    QList<QByteArray> functions; // each with the number of its arguments: "CLineEdit::setRange/2"
};

/// Adds the calls with every combination of the extremes of \a Types.
template <class... Types>
struct Combination {
    typedef std::function<void(QObject*)> Function;

    static void add(Table* table, const Call& call, const Function& function)
    {
        table->calls.append(call);
        table->calls.last().text += ")";
        table->calls.last().make = function;
    }
};

template <class First, class... Rest>
struct Combination<First, Rest...> {
    typedef std::function<void(QObject*, const First&, const Rest&...)> Function;

    static void add(Table* table, const Call& call, const Function& function)
    {
        const Values<First> all = Extremes<First>::values();
        for (int i = 0; i < all.size(); ++i) {
            const First value = all.at(i).value;
            Call next = call;
            next.text += (call.text.endsWith("(") ? "" : ",") + all.at(i).name;
            Combination<Rest...>::add(table, next, [=](QObject* object, const Rest&... rest) {
                function(object, value, rest...);
            });
        }
    }
};

/// The rows of one class. Each row is a function, and stands for all of its calls: every
/// combination of the extremes of its arguments' types.
template <class Class>
class Rows
{
public:
    Rows(Table* table, const char* owner) : m_table(table), m_owner(owner)
    {
    }

    /// A function that has one form only.
    template <class Owner, class Result, class... Arguments>
    Rows& add(const char* name, Result (Owner::*function)(Arguments...))
    {
        addRow<typename std::decay<Arguments>::type...>(
            name,
            [function](QObject* object, const typename std::decay<Arguments>::type&... arguments) {
                (static_cast<Class*>(object)->*function)(arguments...);
            });
        return *this;
    }

    /// One of several forms: the one with arguments of these types.
    template <class... Arguments>
    Rows& form(const char* name, void (Class::*function)(Arguments...))
    {
        return add(name, function);
    }

    /// The same of static functions.
    template <class Result, class... Arguments>
    Rows& addStatic(const char* name, Result (*function)(Arguments...))
    {
        addRow<typename std::decay<Arguments>::type...>(
            name, [function](QObject*, const typename std::decay<Arguments>::type&... arguments) {
                function(arguments...);
            });
        return *this;
    }

private:
    template <class... Types>
    void addRow(const char* name, const typename Combination<Types...>::Function& function)
    {
        Call call;
        call.owner = m_owner;
        call.text = m_owner + "::" + name;
        const int count = sizeof...(Types);
        m_table->functions.append(call.text + "/" + QByteArray::number(count));
        call.text += "(";
        Combination<Types...>::add(m_table, call, function);
    }

    Table* m_table;
    QByteArray m_owner;
};

/// Every function of the library's classes that changes an object; see the table's own file.
Table everyFunction();

} // namespace extremes

#endif
