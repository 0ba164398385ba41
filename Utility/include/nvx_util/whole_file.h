#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Util {

/// All bytes of a regular file; std::nullopt if it cannot be opened or not all of it can be read, for example
/// because another process has locked a part of it.
[[nodiscard]] std::optional<QByteArray> readWholeFile(const QString &fileName);

/// Replaces the contents of a file, completely or not at all: the bytes are written to a new file next to it,
/// with ".nvxpart" appended to its name, flushed to the disk, and renamed over the old file. At any time,
/// also after a crash or on a full disk, the name refers to the old file or to the new one. A file with the
/// same bytes is left alone and keeps its time stamp. The old file's access rights, attributes and time of
/// creation are preserved, its owner as far as this process may, and a symbolic link stays a link. If another
/// program has one of the files open, it is tried again for half a second. The folder must exist. False if
/// the file is not writable or not a regular file, another process is replacing it, or the bytes cannot be
/// written to the disk; the old file is then unchanged.
///
/// This is not QSaveFile, because that one gives its temporary file a random name, so what a killed run
/// leaves could not be found and removed by the next one.
[[nodiscard]] bool replaceWholeFile(const QString &fileName, const QByteArray &contents);

/// Copies a file to an unused name, completely or not at all, through a ".nvxpart" file as above. An existing
/// file is never replaced, not even one created during the copy. The copy has the permissions of a new file.
/// False if the name is in use, or the source cannot be read or the copy cannot be written; nothing is left
/// of it then.
[[nodiscard]] bool copyToFreeName(const QString &source, const QString &target);

/// Creates a file with these contents, in the same way.
[[nodiscard]] bool createWholeFile(const QString &fileName, const QByteArray &contents);

/// Removes the ".nvxpart" file that a crash has left next to this file. The file itself stays, and so does a
/// ".nvxpart" file that another process is writing.
void removeUnfinished(const QString &fileName);

} // namespace Nvx::Util
