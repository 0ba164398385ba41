#pragma once

#include <QString>

namespace Nvx::Run {

/// Removes a file of the product, even a write-protected one, such as a file copied from read-only media. For
/// a link or a shortcut it removes the link, not the target. Returns true if the file does not exist
/// afterwards.
bool removeProductFile(const QString &path);

/// Replaces a file of the product with a copy of another. The old file is removed first, so if the source is
/// missing, no file is left. Returns true if the copy was made.
bool replaceProductFile(const QString &source, const QString &target);

} // namespace Nvx::Run
