#pragma once

#include "nvx_util/shell_link.h"

#include <windows.h>

#include <shlobj.h>

namespace Nvx::Util::Platform {

/// Writes the link through the shell's object and saves it. If the object rejects a string, the others are
/// still written. Returns the result of the last call, which saves the link.
HRESULT saveShellLink(IShellLinkW &shellLink, const ShellLink &link);

} // namespace Nvx::Util::Platform
