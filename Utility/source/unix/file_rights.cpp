#include "platform.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace Nvx::Util::Platform {

void copyRights(const QString &from, const QString &to)
{
    struct stat old = {};
    const QByteArray target = QFile::encodeName(to);
    if (stat(QFile::encodeName(from).constData(), &old) != 0)
        return;
    // Another user's file remains that user's only if an administrator replaces it. The mode is set
    // afterwards, since a change of the owner clears parts of it.
    constexpr auto sameOwner = static_cast<uid_t>(-1);
    if (chown(target.constData(), old.st_uid, old.st_gid) == 0 ||
        chown(target.constData(), sameOwner, old.st_gid) == 0)
        chmod(target.constData(), old.st_mode & 07777);
    else
        chmod(target.constData(), old.st_mode & 0777);
}

} // namespace Nvx::Util::Platform
