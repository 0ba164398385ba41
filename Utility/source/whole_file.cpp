#include "nvx_util/whole_file.h"

#include <QFile>
#include <QSaveFile>

namespace Nvx::Util {

namespace {

constexpr qint64 chunk = 64 * 1024;

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

} // namespace

bool replaceWholeFile(const QString &fileName, const QByteArray &contents)
{
    if (hasContents(fileName, contents))
        return true;
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(contents);
    return file.commit();
}

} // namespace Nvx::Util
