#include "platform.h"

#include <QFile>

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

} // namespace Nvx::Util::Platform
