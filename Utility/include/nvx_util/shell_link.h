#pragma once

#include <QString>

namespace Nvx::Util {

/// A link file of the shell, such as a shortcut on the desktop.
struct ShellLink
{
    QString target;   ///< the program to start
    QString linkPath; ///< the link file, ending in ".lnk"
    QString description;
    QString workFolder;
    QString iconPath; ///< file whose first icon is shown; if empty, the target
    QString arguments;
};

/// The size of the buffers in which a link's strings are passed to the shell, in 16-bit characters, including
/// the terminating zero.
constexpr qsizetype shellLinkTextCapacity = 260;

/// The result for a string that does not fit: the system's error "file name too long".
constexpr auto shellLinkTextTooLong = static_cast<qint32>(0x800700CEU);

/// The result on a machine without shell links: the system's error E_NOTIMPL.
constexpr auto shellLinksMissing = static_cast<qint32>(0x80004001U);

/// The first string of the link that does not fit, including the link file's path; empty if all fit.
inline QString tooLongTextOf(const ShellLink &link)
{
    for (const QString &text :
         {link.target, link.linkPath, link.description, link.workFolder, link.iconPath, link.arguments}) {
        if (text.size() >= shellLinkTextCapacity)
            return text;
    }
    return QString();
}

} // namespace Nvx::Util
