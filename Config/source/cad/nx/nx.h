#pragma once

#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectNx(Detection &detection);

/// If the check box is checked, adds the launcher's folder to the custom_dirs.dat of every NX that was found,
/// or removes it from there. The first install backs the file up with ".bak" appended to its name.
void installNxLauncher(const LauncherStep &step);

} // namespace Nvx::Cad
