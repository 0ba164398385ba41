#pragma once

#include <QString>

// Owners and access rights of folders that users below an administrator may have created before us.
// Administrators are those of trusted_files.h. Links are neither changed nor followed.

namespace Nvx::Util {

/// Makes an existing folder one that only administrators own and can write; users may read and run what it
/// contains. Its rights are then no longer inherited. What it contains inherits them. Neither the folder nor
/// anything in it is changed if administrators own it and nobody else can write it. False if the folder is
/// none of that kind afterwards, is a link, or is the whole drive.
[[nodiscard]] bool reserveForAdministrators(const QString &folder);

/// Takes the last folders of a path, as many as `levels` and as far as they exist, over from users below an
/// administrator: these folders get administrators as their owner and the rights that they inherit. A folder
/// that administrators own is not changed. False if one is a link or cannot be taken over.
[[nodiscard]] bool takeOverFolders(const QString &path, int levels);

/// Gives a folder the rights that it inherits, and no others.
void inheritRights(const QString &folder);

} // namespace Nvx::Util
