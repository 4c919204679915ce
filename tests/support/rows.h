#ifndef CWIDGET_TESTS_SUPPORT_ROWS_H
#define CWIDGET_TESTS_SUPPORT_ROWS_H

#include <QtTest>

#include <cstdio>

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

/// Stands in the body of a loop over a table within one test, and prints in which row a check of
/// this body has failed.
class InRow
{
public:
    explicit InRow(const QByteArray& name) : m_name(name)
    {
    }

    explicit InRow(const char* name) : m_name(name)
    {
    }

    explicit InRow(const QString& name) : m_name(name.toUtf8())
    {
    }

    explicit InRow(qint64 number) : m_name(QByteArray::number(number))
    {
    }

    ~InRow()
    {
        if (!QTest::currentTestFailed())
            return;
        printf("   in row %s\n", m_name.constData());
        fflush(stdout);
    }

private:
    QByteArray m_name;

    Q_DISABLE_COPY(InRow)
};

} // namespace testing

#endif
