#pragma once

#include <QString>

namespace Nvx::Util {
class HeldWay;
}

namespace Nvx::Run {

class Reporter;

/// Whether only administrators decide where the way leads. If not, a line at level 1 says that the file or
/// folder at path is left alone.
bool isTrustedWay(Reporter &reporter, const Util::HeldWay &way, const QString &path);

/// Util::reserveForAdministrators, with a line at level 1 if it fails.
bool reserveFolder(Reporter &reporter, const QString &folder);

/// Util::takeOverFolders, with a line at level 1 if it fails.
bool takeOverFolders(Reporter &reporter, const QString &folder, int levels);

/// Removes a file of the product, even a write-protected one, such as a file copied from read-only media. For
/// a link or a shortcut it removes the link, not the target. A file that is reached through a link of someone
/// below an administrator stays, with a diagnostic warning. Returns true if the file does not exist
/// afterwards.
bool removeProductFile(const QString &path);

/// Replaces a file of the product with a copy of another. The old file is removed first, so if the source is
/// missing, no file is left. If the old file cannot be removed, nothing is copied. Returns true if the copy
/// was made.
bool replaceProductFile(const QString &source, const QString &target);

} // namespace Nvx::Run
