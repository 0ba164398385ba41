#pragma once

#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectSolidWorks(Detection &detection);

/// If the check box is checked, unregisters the launcher's COM library, and on install registers it again.
void installSolidWorksLauncher(const LauncherStep &step);

} // namespace Nvx::Cad
