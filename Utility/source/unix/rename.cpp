#include "platform.h"

#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace Nvx::Util::Platform {

// A link is never made over a name that is taken, a renamed file would be.
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
