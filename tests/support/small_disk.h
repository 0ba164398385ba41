#pragma once

#include <QByteArray>
#include <QFile>
#include <QStorageInfo>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// A file system of its own in a folder, as small as a test wants it. It is seen by this process and its
/// children alone, and goes with them. For Linux only.
class SmallDisk
{
public:
    /// What a file takes at least, and the unit of what is free.
    static constexpr qint64 page = 4096;

    /// To be called before anything else, while the process has one thread. False where such disks may not be
    /// made; the test cannot run there.
    static bool arePermitted()
    {
        if (unshare(CLONE_NEWNS) != 0 && !becomeOwnAdministrator())
            return false;
        // Otherwise what is mounted here would be seen outside too.
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

    /// Fills the disk until only so many pages are free. False when there are not as many.
    bool leave(qint64 pages)
    {
        makeRoom();
        QFile filler(fillerName());
        const qint64 bytes = (freePages() - pages) * page;
        return bytes >= 0 && filler.open(QIODevice::WriteOnly) &&
               filler.write(QByteArray(bytes, 'x')) == bytes && filler.flush() && freePages() == pages;
    }

    /// Gives back what was filled.
    void makeRoom() { QFile::remove(fillerName()); }

private:
    // Who is not the machine's administrator may be one among his own processes.
    static bool becomeOwnAdministrator()
    {
        const QByteArray user = "0 " + QByteArray::number(geteuid()) + " 1";
        const QByteArray group = "0 " + QByteArray::number(getegid()) + " 1";
        return unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && tellSystem("setgroups", "deny") &&
               tellSystem("uid_map", user) && tellSystem("gid_map", group);
    }

    static bool tellSystem(const char *name, const QByteArray &text)
    {
        QFile file(QStringLiteral("/proc/self/") + QLatin1String(name));
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
    }

    QString fillerName() const { return QFile::decodeName(m_folder + "/filler"); }

    QByteArray m_folder;
    bool m_isMounted = false;
};
