#pragma once

#include <QByteArray>
#include <QFile>
#include <QStorageInfo>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// A small file system that is mounted in a folder. Only this process and its children see it, and it ends
/// with them. For Linux only.
class SmallDisk
{
public:
    /// The smallest size of a file, and the unit of free space, in bytes.
    static constexpr qint64 page = 4096;

    /// Must be called first, while the process has one thread. False if such disks are not permitted; the
    /// test cannot run then.
    static bool arePermitted()
    {
        if (unshare(CLONE_NEWNS) != 0 && !becomeRootInNamespace())
            return false;
        // Without this, other processes would see what is mounted here.
        return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("none", "/mnt", "tmpfs", 0, nullptr) == 0 && umount("/mnt") == 0;
    }

    /// The folder must exist.
    SmallDisk(const QString &folder, qint64 pages)
        : m_folder(QFile::encodeName(folder))
    {
        const QByteArray size = "size=" + QByteArray::number(pages * page);
        m_isMounted = mount("none", m_folder.constData(), "tmpfs", 0, size.constData()) == 0;
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;
    ~SmallDisk()
    {
        if (m_isMounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }

    bool isMounted() const { return m_isMounted; }

    qint64 freePages() const { return QStorageInfo(QFile::decodeName(m_folder)).bytesFree() / page; }

    /// Fills the disk until this number of pages is free. False if there are fewer.
    bool leave(qint64 pages)
    {
        makeRoom();
        QFile filler(fillerName());
        const qint64 bytes = (freePages() - pages) * page;
        return bytes >= 0 && filler.open(QIODevice::WriteOnly) &&
               filler.write(QByteArray(bytes, 'x')) == bytes && filler.flush() && freePages() == pages;
    }

    /// Frees the space that `leave` has filled.
    void makeRoom() { QFile::remove(fillerName()); }

private:
    // An ordinary user can be root in a user name space of his own.
    static bool becomeRootInNamespace()
    {
        const QByteArray user = "0 " + QByteArray::number(geteuid()) + " 1";
        const QByteArray group = "0 " + QByteArray::number(getegid()) + " 1";
        return unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && writeSetting("setgroups", "deny") &&
               writeSetting("uid_map", user) && writeSetting("gid_map", group);
    }

    static bool writeSetting(const char *name, const QByteArray &text)
    {
        QFile file(QStringLiteral("/proc/self/") + QLatin1String(name));
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
    }

    QString fillerName() const { return QFile::decodeName(m_folder + "/filler"); }

    QByteArray m_folder;
    bool m_isMounted = false;
};
