#include "run/product_files.h"

#include <QFile>

bool removeProductFile(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return true;
    if (file.remove())
        return true;
    file.setPermissions(file.permissions() | QFile::WriteOwner | QFile::WriteUser);
    return file.remove();
}

bool replaceProductFile(const QString &source, const QString &target)
{
    return removeProductFile(target) && QFile::copy(source, target);
}
