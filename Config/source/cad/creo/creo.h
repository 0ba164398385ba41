#pragma once

#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectCreo(Detection &detection);

/// Removes old copies of the launcher from the program's folder. If the check box is checked, also removes
/// the product's entries from the protk.dat of every release of Creo Parametric that was found, and on
/// install adds one at the top of each.
void installCreoLauncher(const LauncherStep &step);

} // namespace Nvx::Cad
