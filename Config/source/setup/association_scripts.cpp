#include "setup/association_scripts.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

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
        {u".nvxst"_s, u"nvxst.ico"_s, FileType::Opens::WithProgram, FileType::Removal::Whole},
        {u".nvz"_s, u"nvz.ico"_s, FileType::Opens::WithProgram, FileType::Removal::Whole},
        {u".tpl"_s, u"nvxtpl.ico"_s, FileType::Opens::Not, FileType::Removal::ClassOnly},
        {u".nvxpkg"_s, u"nvxpkg.ico"_s, FileType::Opens::Not, FileType::Removal::None},
    };
    return types;
}

const QString header = u"Windows Registry Editor Version 5.00"_s;
const QString classes = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\"_s;

QString keyLine(const QString &key)
{
    return u'[' + key + u']';
}

QString removedKeyLine(const QString &key)
{
    return u"[-"_s + key + u']';
}

// The text is written into the script as it is, so it must be escaped already.
QString defaultValueLine(const QString &escapedText)
{
    return u"@=\""_s + escapedText + u'"';
}

// The keys that Windows and the user have for an extension.
QStringList keysOfExtension(const QString &extension)
{
    const QString explorer = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\"_s;
    return {u"HKEY_CLASSES_ROOT\\"_s + extension, u"HKEY_CLASSES_ROOT\\WOW6432Node\\"_s + extension,
            explorer + u"FileExts\\"_s + extension, explorer + u"RecentDocs\\"_s + extension,
            classes + extension};
}

QStringList typeAndIcon(const FileType &type, const AssociationNames &names, const QString &installDirEscaped)
{
    const QString extensionKey = classes + type.extension;
    const QString className = names.programId + type.extension;
    const QString classKey = classes + className;
    const QString subKey = extensionKey + u'\\' + className;
    return {keyLine(extensionKey),
            defaultValueLine(className),
            keyLine(subKey),
            keyLine(subKey + u"\\ShellNew"_s),
            keyLine(classKey),
            defaultValueLine(names.description),
            keyLine(classKey + u"\\DefaultIcon"_s),
            defaultValueLine(u"\\\"%1\\\\%2\\\""_s.arg(installDirEscaped, type.icon))};
}

QStringList openCommand(const FileType &type, const AssociationNames &names, const QString &installDirEscaped)
{
    const QString shell = classes + names.programId + type.extension + u"\\shell"_s;
    return {keyLine(shell), defaultValueLine(u"Open"_s), keyLine(shell + u"\\Open"_s),
            defaultValueLine(names.description), keyLine(shell + u"\\Open\\command"_s),
            // The shell replaces "%1" with the path of the document.
            defaultValueLine(u"\\\""_s + installDirEscaped + u"\\\\NVX.exe\\\" \\\"%1\\\""_s)};
}

} // namespace

AssociationNames associationNamesOf(const QString &release)
{
    return {u"NVX%1"_s.arg(release), u"NVX %1"_s.arg(release)};
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

} // namespace Nvx::Setup
