#ifndef CWIDGET_STYLE_TABLE_P_H
#define CWIDGET_STYLE_TABLE_P_H

#include <cstddef>

// Tables of rows that are fixed when the library is compiled. A table that answers for an
// enumeration, its rows in the order of the numbers, says so with a static_assert on its count.
namespace table
{

/// How many rows \a table has.
template <typename Row, std::size_t rows>
constexpr int count(const Row (&)[rows])
{
    return static_cast<int>(rows);
}

/// Whether \a table has a row of that \a number, from 0.
template <typename Row, std::size_t rows>
constexpr bool has(const Row (&)[rows], int number)
{
    return number >= 0 && static_cast<std::size_t>(number) < rows;
}

/// The row of \a table with that \a number, from 0; null when there is none.
template <typename Row, std::size_t rows>
const Row* row(const Row (&table)[rows], int number)
{
    return has(table, number) ? &table[number] : nullptr;
}

} // namespace table

#endif
