#include "platform.h"

#include <QFile>
#include <QFileInfo>

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

// A new name is on the disk only when its folder is. Nothing can be done about a failure: the file has its
// new name, and some file systems cannot flush a folder.
void flushFolderOf(const QString &path)
{
    const int folder = open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

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
    flushFolderOf(to);
    return true;
}

bool renameOver(const QString &from, const QString &to)
{
    if (rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    flushFolderOf(to);
    return true;
}

} // namespace Nvx::Util::Platform
