#include "nvx_util/regular_file.h"

#include "platform.h"

#include <QFile>
#include <QFileInfo>

namespace Nvx::Util {

// Qt opens files by their full paths, in which the names of devices have no meaning.
FileContents readRegularFile(const QString &fileName, qint64 maximumSize)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return {.problem = Platform::missingFile()};
    if (!info.isFile())
        return {.problem = Platform::irregularFile()};
    if (info.size() > maximumSize)
        return {.problem = Platform::largeFile(maximumSize)};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {.problem = file.errorString()};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {.wasOpened = true, .problem = file.errorString()};
    return {.bytes = std::move(bytes), .wasOpened = true};
}

} // namespace Nvx::Util
