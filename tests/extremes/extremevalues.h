#ifndef CWIDGET_TESTS_EXTREMES_EXTREMEVALUES_H
#define CWIDGET_TESTS_EXTREMES_EXTREMEVALUES_H

#include "style/style.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QPixmap>
#include <QSize>
#include <QStringList>
#include <QVariant>
#include <climits>
#include <type_traits>

// The extremes of the types that the public functions of the library take. None takes a number with
// a fraction.
namespace extremes
{

template <class Type>
struct Value {
    QByteArray name;
    Type value;
};

template <class Type>
struct Values : QList<Value<Type>> {
    Values& add(const QByteArray& name, const Type& value)
    {
        const Value<Type> row = {name, value};
        this->append(row);
        return *this;
    }

    Values& addNumbers(const std::initializer_list<Type>& numbers)
    {
        for (auto number : numbers)
            add(QByteArray::number(number), number);
        return *this;
    }
};

/// Enumerations; the library's are ints, so an application may pass any number.
template <class Type, class Enable = void>
struct Extremes {
    static_assert(std::is_enum<Type>::value, "a type without extremes");

    static Values<Type> values()
    {
        Values<Type> values;
        for (auto number : {INT_MIN, -1, 0, 1, 2, 3, 4, 8, 99, INT_MAX})
            values.add(QByteArray::number(number), static_cast<Type>(number));
        return values;
    }
};

/// Null, as all that is the same for every class.
template <class Type>
struct Extremes<Type*> {
    static Values<Type*> values()
    {
        return Values<Type*>().add("0", nullptr);
    }
};

template <>
struct Extremes<bool> {
    static Values<bool> values();
};

template <>
struct Extremes<int> {
    static Values<int> values();
};

template <>
struct Extremes<unsigned int> {
    static Values<unsigned int> values();
};

template <>
struct Extremes<unsigned long long> {
    static Values<unsigned long long> values();
};

template <>
struct Extremes<QString> {
    static Values<QString> values();
};

template <>
struct Extremes<QStringList> {
    static Values<QStringList> values();
};

template <>
struct Extremes<QList<int>> {
    static Values<QList<int>> values();
};

template <>
struct Extremes<QColor> {
    static Values<QColor> values();
};

template <>
struct Extremes<QPixmap> {
    static Values<QPixmap> values();
};

template <>
struct Extremes<QFont> {
    static Values<QFont> values();
};

template <>
struct Extremes<QSize> {
    static Values<QSize> values();
};

template <>
struct Extremes<QVariant> {
    static Values<QVariant> values();
};

template <>
struct Extremes<Qt::CheckState> {
    static Values<Qt::CheckState> values();
};

template <>
struct Extremes<Qt::Alignment> {
    static Values<Qt::Alignment> values();
};

template <>
struct Extremes<WidgetStyle> {
    static Values<WidgetStyle> values();
};

} // namespace extremes

#endif
