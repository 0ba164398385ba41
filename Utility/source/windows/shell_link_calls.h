#pragma once

#include "nvx_util/shell_link.h"

#include <windows.h>

#include <shlobj.h>

namespace Nvx::Util::Platform {

/// Writes the link through the shell's object and saves it. A text that the object refuses does not keep the
/// others from being written. Returns the result of the last call, which is the one that saves.
HRESULT saveShellLink(IShellLinkW &shellLink, const ShellLink &link);

} // namespace Nvx::Util::Platform
