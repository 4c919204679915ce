#ifndef CWIDGET_TESTS_SUPPORT_ROWS_H
#define CWIDGET_TESTS_SUPPORT_ROWS_H

#include <QtTest>

namespace testing
{

/// For the _data function of a test that runs once for each row of \a table: a column "row" with
/// the numbers from 0, which name the rows.
template <typename Row, size_t count>
void addRows(const Row (&)[count])
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < count; ++i)
        QTest::newRow(("row " + QByteArray::number(static_cast<int>(i))).constData())
            << static_cast<int>(i);
}

} // namespace testing

#endif
