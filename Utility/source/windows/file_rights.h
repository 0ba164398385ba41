#pragma once

// Owners and access rights of files by their paths, for the other sources of this folder.

#include "windows/open_entry.h"

#include <QString>

namespace Nvx::Util::Platform {

/// A path in the form in which the system accepts more than 260 characters.
std::wstring longPath(const QString &path);

/// Opens an existing file or folder, for a link the link itself.
Handle openEntry(const QString &path, DWORD access, DWORD sharing);

/// The same with the rights that only an administrator's process has, if it is denied without them.
Handle openWithPrivileges(const QString &path, DWORD access, DWORD sharing);

} // namespace Nvx::Util::Platform
