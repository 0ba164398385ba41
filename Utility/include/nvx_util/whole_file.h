#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Util {

/// All the bytes of a file; nothing when it cannot be opened or not all of it can be read, as when another
/// process has locked a part.
[[nodiscard]] std::optional<QByteArray> readWholeFile(const QString &fileName);

/// Makes the bytes the contents of the file, whole or not at all: they are written beside it, under the name
/// with ".nvxpart" behind it, flushed to the disk, and renamed over the old file. Whoever looks, also after a
/// crash or on a full disk, finds the old file or the new one; a part that a crash has left goes with the
/// next call. A file that has these very bytes already is left alone, with its time stamp. The old file's
/// permissions are kept, and a symbolic link stays one. The folder must exist. False when the file is not
/// writable, another process is replacing it, or the bytes could not be put on the disk; the old file is then
/// as it was.
[[nodiscard]] bool replaceWholeFile(const QString &fileName, const QByteArray &contents);

/// Copies a file to a name that is free, whole or not at all, by way of a part as above. Nothing that has the
/// name is ever replaced, not even what comes there meanwhile. The copy has the permissions of a new file.
/// False when the name is taken, the source cannot be read or the disk does not take the copy; no part of it
/// is left then.
[[nodiscard]] bool copyToFreeName(const QString &source, const QString &target);

/// Removes the part that a crash has left of a replacement of the file, or of a copy to its name. The file
/// itself, and what another process is writing at this moment, stay.
void removeUnfinished(const QString &fileName);

} // namespace Nvx::Util
