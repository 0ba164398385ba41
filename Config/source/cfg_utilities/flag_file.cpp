#include "cfg_utilities/flag_file.h"

#include <QFile>

namespace Nvx::Engine {

bool holdsOnlyWhiteSpace(QIODevice &device)
{
    char bytes[flagFileBlockBytes];
    for (;;) {
        const qint64 read = device.read(bytes, flagFileBlockBytes);
        if (read < 0)
            return false;
        if (read == 0)
            return device.atEnd();
        if (!QByteArray::fromRawData(bytes, static_cast<qsizetype>(read)).trimmed().isEmpty())
            return false;
    }
}

bool isUnchangedFlagFile(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return true;
    return file.open(QIODevice::ReadOnly) && holdsOnlyWhiteSpace(file);
}

bool createFlagFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) &&
           file.write("\r\n") == 2;
}

} // namespace Nvx::Engine
