#pragma once

#include <QString>

namespace Nvx::Cad {

struct LauncherStep;

/// Unregisters a COM library with the system's regsvr32, and on install registers it again. library is its
/// path below the install dir, with "/".
void configureComLibrary(const LauncherStep &step, const QString &library);

} // namespace Nvx::Cad
