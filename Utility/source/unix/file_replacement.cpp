#include "platform.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Nvx::Util::Platform {

namespace {

/// A locked descriptor. The system releases the lock when the process ends in any way.
class Lock
{
public:
    explicit Lock(const QByteArray &path)
        : m_descriptor(open(path.constData(), O_RDONLY | O_CLOEXEC))
    {
    }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;
    ~Lock()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }

    bool take() const
    {
        // Without file locks, a second process cannot be detected.
        return m_descriptor >= 0 && (flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK);
    }

    /// Another process may have removed the file and created a new one with its name before we got the lock.
    bool isOn(const QByteArray &path) const
    {
        struct stat held = {};
        struct stat named = {};
        return fstat(m_descriptor, &held) == 0 && stat(path.constData(), &named) == 0 &&
               held.st_dev == named.st_dev && held.st_ino == named.st_ino;
    }

private:
    int m_descriptor;
};

} // namespace

std::shared_ptr<void> claimFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    auto lock = std::make_shared<Lock>(name);
    if (!lock->take() || !lock->isOn(name))
        return nullptr;
    return lock;
}

bool flushToDisk(int descriptor)
{
    return fsync(descriptor) == 0;
}

// link() fails if the new name is in use; rename() would replace the file.
bool renameToFreeName(const QString &from, const QString &to)
{
    if (link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    QFile::remove(from);
    return true;
}

bool renameOver(const QString &from, const QString &to)
{
    return rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace Nvx::Util::Platform
