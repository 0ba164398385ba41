#pragma once

#include <QIODevice>
#include <QString>

namespace Nvx::Engine {

/// How much of a device holdsOnlyWhiteSpace reads at a time.
constexpr qsizetype flagFileBlockBytes = 4096;

/// Whether the rest of the device contains only white space: blanks, tabs and line ends. Returns false if
/// reading fails.
bool holdsOnlyWhiteSpace(QIODevice &device);

/// Whether a marker file may be removed because the user has not changed it: it contains only white space or
/// does not exist. A file that cannot be read counts as changed.
bool isUnchangedFlagFile(const QString &path);

/// Creates the marker file, with one empty line. Returns false if the file exists or cannot be written.
[[nodiscard]] bool createFlagFile(const QString &path);

} // namespace Nvx::Engine
