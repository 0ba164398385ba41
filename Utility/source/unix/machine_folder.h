#pragma once

#include <QString>

namespace Nvx::Util::Platform {

/// The folder that stands for a Windows machine, as the environment variable NVX_MACHINE names it; empty when
/// it is unset.
QString machineFolder();

} // namespace Nvx::Util::Platform
