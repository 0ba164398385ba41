#pragma once

#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectSpaceClaim(Detection &detection);

/// If the check box is checked, removes the product's add-in from SpaceClaim's folder of add-ins, and on
/// install copies it there. The folder is never removed.
void installSpaceClaimLauncher(const LauncherStep &step);

} // namespace Nvx::Cad
