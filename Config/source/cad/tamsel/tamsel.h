#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;

std::optional<QString> detectTamsel(Detection &detection);
std::optional<QString> detectTamselArchitecture(Detection &detection);
std::optional<QString> detectTamselMep(Detection &detection);

// If the check box of the edition is checked, installs or removes the add-in for each of its years that was
// found.
void installTamselLauncher(const LauncherStep &step);
void installTamselArchitectureLauncher(const LauncherStep &step);
void installTamselMepLauncher(const LauncherStep &step);

/// Removes the manifest of the add-in for one year of Tamsel, and on install writes it to the launcher's
/// folder and copies it to the folders where Tamsel looks for add-ins.
void installTamselAddin(const LauncherStep &step, int year);

inline const QString tamselManifestName = QStringLiteral("NVX_2017.Addin");

/// The bytes of the manifest that makes Tamsel load the launcher below the install dir: UTF-8 that declares
/// itself UTF-16, cut to as many bytes as the text has characters. Deliberately: all launchers of this
/// release ship that way. The path is not escaped.
QByteArray tamselManifest(const QString &installDir);

} // namespace Nvx::Cad
