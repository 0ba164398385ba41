#pragma once

#include <QString>

namespace Nvx::Util::Platform {

/// The folder that substitutes for a Windows machine, from the environment variable NVX_MACHINE; empty if
/// unset.
QString machineFolder();

} // namespace Nvx::Util::Platform
