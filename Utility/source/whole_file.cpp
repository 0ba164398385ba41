#include "nvx_util/whole_file.h"

#include "platform.h"

#include <QFile>
#include <QSaveFile>

namespace Nvx::Util {

namespace {

constexpr qint64 chunk = qint64{64} * 1024;

bool hasContents(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() != contents.size())
        return false;
    for (qsizetype at = 0; at < contents.size();) {
        const QByteArray bytes = file.read(chunk);
        if (bytes.isEmpty() || !QByteArrayView(contents).sliced(at).startsWith(bytes))
            return false;
        at += bytes.size();
    }
    return true;
}

// The file is only as good as its last byte: on a full disk QSaveFile takes what fits for a success.
bool writeAll(QSaveFile &file, const QByteArray &contents)
{
    return file.write(contents) == contents.size() && file.flush() && Platform::flushToDisk(file.handle());
}

bool copyAll(QFile &source, QFile &target)
{
    QByteArray bytes(chunk, Qt::Uninitialized);
    for (;;) {
        const qint64 read = source.read(bytes.data(), chunk);
        if (read < 0 || (read == 0 && !source.atEnd()))
            return false;
        if (read == 0)
            return target.flush() && Platform::flushToDisk(target.handle());
        if (target.write(bytes.constData(), read) != read)
            return false;
    }
}

// Writes the copy that is to be renamed; what an earlier one that was cut off has left makes way.
bool writePart(const QString &source, const QString &partName)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return false;
    QFile::remove(partName);
    QFile part(partName);
    return part.open(QIODevice::WriteOnly | QIODevice::NewOnly) && copyAll(from, part);
}

} // namespace

bool replaceWholeFile(const QString &fileName, const QByteArray &contents)
{
    if (hasContents(fileName, contents))
        return true;
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && writeAll(file, contents) && file.commit();
}

bool copyToFreeName(const QString &source, const QString &target)
{
    if (QFile::exists(target))
        return false;
    const QString part = target + QStringLiteral(".part");
    if (writePart(source, part) && Platform::renameToFreeName(part, target))
        return true;
    QFile::remove(part);
    return false;
}

} // namespace Nvx::Util
