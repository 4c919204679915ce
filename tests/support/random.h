#ifndef CWIDGET_TESTS_SUPPORT_RANDOM_H
#define CWIDGET_TESTS_SUPPORT_RANDOM_H

#include <QtGlobal>

namespace testing
{

/// A generator of our own: the same numbers with every library and on every machine.
class Random
{
public:
    explicit Random(quint32 seed) : m_state(seed)
    {
    }

    int below(int limit)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return static_cast<int>((m_state >> 8) % static_cast<quint32>(limit));
    }

private:
    quint32 m_state;
};

} // namespace testing

#endif
