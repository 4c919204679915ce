#ifndef CWIDGET_TESTS_HOTPLUG_FAKESYSTEM_H
#define CWIDGET_TESTS_HOTPLUG_FAKESYSTEM_H

#include "support/testing.h"

namespace testing
{

/// Puts a folder with few programs in the place of /usr/bin, for this thread and the processes that
/// it starts. Nothing changes for the rest of the system. It needs root, once per test program.
class FakeSystem
{
public:
    static bool separate();

    FakeSystem();
    ~FakeSystem();

    bool isMounted() const;
    bool takeOver(const QString& program) const;
    void writeLister(const QByteArray& script) const;

private:
    TemporaryFolder m_folder;
    bool m_mounted;
};

} // namespace testing

#endif
