#pragma once

#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectBrevant(Detection &detection);

/// If the check box is checked, unregisters the launcher's COM library, and on install registers it again.
void installBrevantLauncher(const LauncherStep &step);

} // namespace Nvx::Cad
