#include "run/product_files.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

// A link whose target is gone "does not exist", and anything with a shortcut's name counts as a link, whether
// it is there or not; so it is looked for in its folder.
bool isThere(const QString &path)
{
    const QFileInfo entry(path);
    if (entry.exists() || !entry.isSymLink())
        return entry.exists();
    QDirIterator entries(entry.path(), QDir::AllEntries | QDir::System | QDir::Hidden);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileName().compare(entry.fileName(), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

bool removeProductFile(const QString &path)
{
    if (!isThere(path))
        return true;
    QFile file(path);
    if (!file.remove()) {
        file.setPermissions(file.permissions() | QFile::WriteOwner | QFile::WriteUser);
        file.remove();
    }
    // The system may take a removal for done that the disk then refuses, or that waits for another program.
    return !isThere(path);
}

bool replaceProductFile(const QString &source, const QString &target)
{
    return removeProductFile(target) && QFile::copy(source, target);
}
