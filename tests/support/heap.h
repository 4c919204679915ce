#ifndef CWIDGET_TESTS_SUPPORT_HEAP_H
#define CWIDGET_TESTS_SUPPORT_HEAP_H

#include <QByteArray>

#include <cstddef>
#include <malloc.h>

namespace testing
{

/// The bytes of heap in use; 0 where the C library cannot tell.
inline size_t heapInUse()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    return mallinfo2().uordblks;
#else
    return 0;
#endif
}

/// Whether heapInUse() tells. Under the sanitizers, which bring a heap of their own, it does not.
inline bool isHeapKnown()
{
    const size_t size = 100000;
    const size_t before = heapInUse();
    const QByteArray block(static_cast<int>(size), 'x');
    return heapInUse() >= before + size && block.at(0) == 'x';
}

} // namespace testing

#endif
