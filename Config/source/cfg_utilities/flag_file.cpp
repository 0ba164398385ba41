#include "cfg_utilities/flag_file.h"

#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

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

bool canBeFolder(const QString &path)
{
    const QString native = QString(path).replace(u'/', u'\\');
    if (!native.startsWith("\\\\"_L1))
        return true;
    // \\server\share, \\server\pipe, and with "." or "?" in place of the server the devices.
    const QString server = native.section(u'\\', 2, 2);
    const QString share = native.section(u'\\', 3, 3);
    return server != u'.' && server != u'?' && share.compare("pipe"_L1, Qt::CaseInsensitive) != 0;
}

std::optional<QByteArray> readPreparedFlagFile(const QString &folder, const QString &fileName)
{
    if (!canBeFolder(folder))
        return std::nullopt;
    const Util::HeldWay way = Util::HeldWay::toFolder(folder);
    const QFileInfo info(Util::joinPath(folder, fileName));
    if (way.plantedPoint() || info.isSymLink() || !info.isFile())
        return std::nullopt;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    const QByteArray contents = file.read(maxPreparedFlagFileBytes + 1);
    if (contents.size() > maxPreparedFlagFileBytes || file.error() != QFile::NoError)
        return std::nullopt;
    return contents;
}

bool createFlagFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) &&
           file.write("\r\n") == 2;
}

} // namespace Nvx::Engine
