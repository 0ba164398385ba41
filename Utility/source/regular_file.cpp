#include "nvx_util/regular_file.h"

#include "platform.h"

#include <QFileInfo>

namespace Nvx::Util {

bool RegularFile::open(OpenMode mode)
{
    // The system has an error message of its own for a folder.
    const QFileInfo info(fileName());
    if (info.exists() && !info.isFile() && !info.isDir()) {
        setErrorString(Platform::irregularFile());
        return false;
    }
    return QFile::open(mode);
}

} // namespace Nvx::Util
