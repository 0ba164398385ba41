#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

namespace Nvx::Engine {

/// How much of a device holdsOnlyWhiteSpace reads at a time.
constexpr qsizetype flagFileBlockBytes = 4096;

/// Whether the rest of the device contains only white space: blanks, tabs and line ends. Returns false if
/// reading fails.
bool holdsOnlyWhiteSpace(QIODevice &device);

/// Whether a marker file may be removed because the user has not changed it: it contains only white space or
/// does not exist. A file that cannot be read counts as changed.
bool isUnchangedFlagFile(const QString &path);

/// The maximum size of a prepared marker file.
constexpr qint64 maxPreparedFlagFileBytes = 64 * 1024;

/// Whether a folder's path can only be that of a folder: devices and pipes have paths of their own in the
/// same form, and whoever opens another program's pipe lends it its rights.
bool canBeFolder(const QString &path);

/// The contents of the marker file that an installer has prepared in a folder which anybody may have named;
/// std::nullopt if it is not an ordinary file of at most maxPreparedFlagFileBytes, or if another user has put
/// a link on the way to it.
std::optional<QByteArray> readPreparedFlagFile(const QString &folder, const QString &fileName);

/// Creates the marker file, with one empty line. Returns false if the file exists or cannot be written.
[[nodiscard]] bool createFlagFile(const QString &path);

} // namespace Nvx::Engine
