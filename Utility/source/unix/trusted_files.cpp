#include "platform.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Nvx::Util::Platform {

namespace {

bool isAdministrator(uid_t user)
{
    return user == 0 || user == geteuid();
}

} // namespace

std::optional<FolderLook> lookAtFolder(const QString &path, const QString & /*finalPathOfParent*/, Hold hold)
{
    struct stat found = {};
    if (lstat(QFile::encodeName(path).constData(), &found) != 0)
        return std::nullopt;
    // Nothing can be held here.
    return FolderLook{.point = {.path = path,
                                .isLink = S_ISLNK(found.st_mode),
                                .isHeld = hold == Hold::Yes,
                                .isAdministrators = isAdministrator(found.st_uid)},
                      .finalPath = QFileInfo(path).canonicalFilePath(),
                      .hold = nullptr};
}

std::optional<EntryRights> rightsOf(const QString &path)
{
    struct stat found = {};
    if (lstat(QFile::encodeName(path).constData(), &found) != 0)
        return std::nullopt;
    return EntryRights{.isLink = S_ISLNK(found.st_mode),
                       .isFolder = S_ISDIR(found.st_mode),
                       .isAdministrators = isAdministrator(found.st_uid),
                       .othersMayWrite = (found.st_mode & (S_IWGRP | S_IWOTH)) != 0};
}

// Nothing is inherited here: what administrators own is for them to write.
bool setRights(const QString &path, NewRights /*rights*/)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat found = {};
    if (lstat(name.constData(), &found) != 0 || S_ISLNK(found.st_mode))
        return false;
    constexpr auto sameGroup = static_cast<gid_t>(-1);
    if (!isAdministrator(found.st_uid) && lchown(name.constData(), geteuid(), sameGroup) != 0)
        return false;
    constexpr mode_t others = S_IWGRP | S_IWOTH | S_ISUID | S_ISGID;
    return chmod(name.constData(), found.st_mode & 07777U & ~others) == 0;
}

std::shared_ptr<void> createScriptFile(const QString &path, const QByteArray &contents)
{
    const QByteArray name = QFile::encodeName(path);
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        return nullptr;
    const bool isWritten =
        write(file, contents.constData(), static_cast<size_t>(contents.size())) == contents.size();
    if (close(file) == 0 && isWritten)
        return std::make_shared<bool>(true);
    unlink(name.constData());
    return nullptr;
}

} // namespace Nvx::Util::Platform
