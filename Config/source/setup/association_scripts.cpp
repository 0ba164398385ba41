#include "setup/association_scripts.h"

namespace {

struct FileType
{
    enum class Opens
    {
        WithProgram,
        Not
    };
    enum class Removal
    {
        Whole,
        ClassOnly,
        None
    };

    QString extension;
    QString icon;
    Opens opens;
    Removal removal;
};

const QList<FileType> &fileTypes()
{
    static const QList<FileType> types = {
        {QStringLiteral(".nvxst"), QStringLiteral("nvxst.ico"), FileType::Opens::WithProgram,
         FileType::Removal::Whole},
        {QStringLiteral(".nvz"), QStringLiteral("nvz.ico"), FileType::Opens::WithProgram,
         FileType::Removal::Whole},
        {QStringLiteral(".tpl"), QStringLiteral("nvxtpl.ico"), FileType::Opens::Not,
         FileType::Removal::ClassOnly},
        {QStringLiteral(".nvxpkg"), QStringLiteral("nvxpkg.ico"), FileType::Opens::Not,
         FileType::Removal::None},
    };
    return types;
}

const QString header = QStringLiteral("Windows Registry Editor Version 5.00");
const QString classes = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\");

QString keyLine(const QString &key)
{
    return QLatin1Char('[') + key + QLatin1Char(']');
}

QString removedKeyLine(const QString &key)
{
    return QStringLiteral("[-") + key + QLatin1Char(']');
}

// The text stands in the script as it is, so it must be escaped.
QString defaultValueLine(const QString &escapedText)
{
    return QStringLiteral("@=\"") + escapedText + QLatin1Char('"');
}

// What people and Windows itself keep of an extension.
QStringList keysOfExtension(const QString &extension)
{
    const QString explorer =
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\");
    return {QStringLiteral("HKEY_CLASSES_ROOT\\") + extension,
            QStringLiteral("HKEY_CLASSES_ROOT\\WOW6432Node\\") + extension,
            explorer + QStringLiteral("FileExts\\") + extension,
            explorer + QStringLiteral("RecentDocs\\") + extension, classes + extension};
}

QStringList typeAndIcon(const FileType &type, const AssociationNames &names, const QString &installDirEscaped)
{
    const QString extensionKey = classes + type.extension;
    const QString className = names.programId + type.extension;
    const QString classKey = classes + className;
    const QString subKey = extensionKey + QLatin1Char('\\') + className;
    return {keyLine(extensionKey),
            defaultValueLine(className),
            keyLine(subKey),
            keyLine(subKey + QStringLiteral("\\ShellNew")),
            keyLine(classKey),
            defaultValueLine(names.description),
            keyLine(classKey + QStringLiteral("\\DefaultIcon")),
            defaultValueLine(QStringLiteral("\\\"%1\\\\%2\\\"").arg(installDirEscaped, type.icon))};
}

QStringList openCommand(const FileType &type, const AssociationNames &names, const QString &installDirEscaped)
{
    const QString shell = classes + names.programId + type.extension + QStringLiteral("\\shell");
    return {keyLine(shell), defaultValueLine(QStringLiteral("Open")),
            keyLine(shell + QStringLiteral("\\Open")), defaultValueLine(names.description),
            keyLine(shell + QStringLiteral("\\Open\\command")),
            // The argument stands for the document, which the shell puts in its place.
            defaultValueLine(QStringLiteral("\\\"") + installDirEscaped +
                             QStringLiteral("\\\\NVX.exe\\\" \\\"%1\\\""))};
}

} // namespace

AssociationNames associationNamesOf(const QString &release)
{
    return {QStringLiteral("NVX%1").arg(release), QStringLiteral("NVX %1").arg(release)};
}

QStringList removalScript(const AssociationNames &names)
{
    QStringList lines = {header};
    for (const FileType &type : fileTypes()) {
        if (type.removal == FileType::Removal::None)
            continue;
        if (type.removal == FileType::Removal::Whole) {
            const QStringList keys = keysOfExtension(type.extension);
            for (const QString &key : keys)
                lines << removedKeyLine(key);
        }
        lines << removedKeyLine(classes + names.programId + type.extension);
    }
    return lines;
}

QStringList creationScript(const AssociationNames &names, const QString &installDirEscaped)
{
    QStringList lines = {header};
    for (const FileType &type : fileTypes()) {
        lines << typeAndIcon(type, names, installDirEscaped);
        if (type.opens == FileType::Opens::WithProgram)
            lines << openCommand(type, names, installDirEscaped);
    }
    return lines;
}
