#pragma once

#include <QString>

namespace Nvx::Util {

/// A link file of the shell: what a shortcut on the desktop is.
struct ShellLink
{
    QString target;   ///< the program that it starts
    QString linkPath; ///< the link file, ending in ".lnk"
    QString description;
    QString workFolder;
    QString iconPath; ///< file whose first icon is shown; empty for the target's own
    QString arguments;
};

/// The size of the buffers in which a link's texts are handed to the shell, in 16-bit characters. The last
/// one ends the text, so a text that fits has at least one less.
constexpr qsizetype shellLinkTextCapacity = 260;

/// The result for a text that does not fit: the number of the system's error "file name too long".
constexpr auto shellLinkTextTooLong = static_cast<qint32>(0x800700CEU);

/// The result on a machine that has no shell links: the number of the system's error E_NOTIMPL.
constexpr auto shellLinksMissing = static_cast<qint32>(0x80004001U);

/// The first text of the link that does not fit, the link file's own path among them; empty when all do.
QString tooLongTextOf(const ShellLink &link);

} // namespace Nvx::Util
