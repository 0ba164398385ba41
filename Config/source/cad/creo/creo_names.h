#pragma once

#include <QString>

// What the launcher for Creo Parametric is called, and where it is told to Creo.

constexpr int firstCreoRelease = 1;
constexpr int lastCreoRelease = 3;

inline const QString creoLauncherName = QStringLiteral("NVX_2017_Creo");

/// The file name of the launcher for a release: "NVX_2017_Creo20.dll" for 2.
QString creoLauncherLibrary(int release);

/// The path of protk.dat that belongs to a release, from the install dir and the ship code that Creo recorded
/// in the registry.
QString protkPath(const QString &creoInstallDir, const QString &shipCode, int release);

/// The product's entry in protk.dat for a release: six lines. programFolder holds the running program and the
/// launchers below it.
QString creoEntry(const QString &programFolder, const QString &installDir, int release);
