#include "nvx_util/whole_file.h"

#include <QFile>
#include <QSaveFile>

namespace Nvx::Util {

namespace {

bool hasContents(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && file.size() == contents.size() && file.readAll() == contents;
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
