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

} // namespace

bool replaceWholeFile(const QString &fileName, const QByteArray &contents)
{
    if (hasContents(fileName, contents))
        return true;
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && writeAll(file, contents) && file.commit();
}

} // namespace Nvx::Util
