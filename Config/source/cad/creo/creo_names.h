#pragma once

#include <QString>

// The names of the launcher for Creo Parametric, and the file that makes Creo load it.

namespace Nvx::Cad {

constexpr int firstCreoRelease = 1;
constexpr int lastCreoRelease = 3;

inline const QString creoLauncherName = QStringLiteral("NVX_2017_Creo");

/// The file name of the launcher for a release: "NVX_2017_Creo20.dll" for 2.
QString creoLauncherLibrary(int release);

/// The path of protk.dat of a release, from the install dir and the ship code that Creo recorded in the
/// registry.
QString protkPath(const QString &creoInstallDir, const QString &shipCode, int release);

/// The product's entry in protk.dat for a release: six lines. programFolder contains the running program and
/// the launchers' folder.
QString creoEntry(const QString &programFolder, const QString &installDir, int release);

} // namespace Nvx::Cad
