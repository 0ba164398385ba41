#include "platform.h"

#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace Nvx::Util::Platform {

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
