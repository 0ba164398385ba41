#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The file protk.dat, which lists the add-ins that Creo Parametric loads at start-up, and the product's entry
// in it.

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

// The bytes of protk.dat: one entry after the other, each closed by a line "end". Entries of other programs
// may be in any encoding.

/// The file without the product's entries, which are those that name its launcher, in upper or lower case.
/// Fragments between two ends that are shorter than five characters in the system's ANSI code page, leading
/// and trailing white space not counted, are dropped too. Everything else is preserved byte for byte, each
/// piece closed by "end".
QByteArray withoutLauncherEntries(const QByteArray &contents);

/// The file with the entry before all others; std::nullopt if the file contains an older release's marker,
/// and must not be changed. A marker at the very start does not count.
std::optional<QByteArray> withLauncherEntry(const QByteArray &contents, const QByteArray &entry);

} // namespace Nvx::Cad
