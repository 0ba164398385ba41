#pragma once

#include <QLatin1String>

#include <array>

namespace Nvx::Cad {

/// The versions of NX, as the registry and the labels name them.
inline constexpr std::array nxVersions{QLatin1String("8.5"),    QLatin1String("8.5.0"), QLatin1String("9.0"),
                                       QLatin1String("9.5"),    QLatin1String("9.5.0"), QLatin1String("10.0"),
                                       QLatin1String("10.5.0"), QLatin1String("11.0")};

} // namespace Nvx::Cad
