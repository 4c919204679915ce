#include "hotplug/fakesystem.h"

#include <QFile>

#include <sched.h>
#include <sys/mount.h>

namespace testing
{

/// Gives the calling thread a view of its own of what is mounted; false without the permission.
bool FakeSystem::separate()
{
    return unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Mounts a folder with a shell and grep, and without a listing tool.
FakeSystem::FakeSystem() : m_mounted(false)
{
    const char* const programs[] = {"sh", "grep", "head", "sleep", "yes"};
    for (size_t i = 0; i < sizeof programs / sizeof programs[0]; ++i) {
        if (!takeOver(QLatin1String(programs[i])))
            return;
    }
    m_mounted = mount(m_folder.path().toLocal8Bit().constData(), "/usr/bin", nullptr, MS_BIND,
                      nullptr) == 0;
}

FakeSystem::~FakeSystem()
{
    if (m_mounted)
        umount2("/usr/bin", MNT_DETACH);
}

bool FakeSystem::isMounted() const
{
    return m_mounted;
}

/// Copies \a program of the real folder.
bool FakeSystem::takeOver(const QString& program) const
{
    const QString path = m_folder.path() + QLatin1Char('/') + program;
    return QFile::copy(QLatin1String("/usr/bin/") + program, path) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                           QFile::ReadOther | QFile::ExeOther);
}

/// Makes the shell \a script the listing tool.
void FakeSystem::writeLister(const QByteArray& script) const
{
    const QString path = m_folder.write(QLatin1String("lsusb"), "#!/bin/sh\n" + script + '\n');
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace testing
