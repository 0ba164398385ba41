#pragma once

#include "cad/cad_packages.h"
#include "cad/launcher_check_boxes.h"

#include <QLatin1String>
#include <QList>
#include <QStringList>

#include <optional>
#include <span>

namespace Nvx::Cad {

struct Detection;
struct LauncherStep;
class RegistryListing;

/// A program that must not run while the launchers are configured.
struct GuardedProgram
{
    QLatin1String fileName;    ///< in upper case
    QLatin1String displayName; ///< in the question to the user and in the log
    int place;                 ///< in the guard's list, from 1
};

/// A launcher, its check box on the wizard's page, and how its CAD system is found and configured.
struct CadSystem
{
    Launcher launcher;
    QLatin1String objectName; ///< of the check box
    const char *label;        ///< before the search, in the translation context "FeaturePage"
    int gridRow;              ///< on the page; rows without a check box separate the groups
    std::optional<GuardedProgram> program = std::nullopt;

    /// Searches the registry. Returns the label for the check box, std::nullopt if nothing was found.
    std::optional<QString> (*detect)(Detection &detection);

    /// Installs or removes the launcher if its check box is checked. Failures are logged.
    void (*install)(const LauncherStep &step);
};

/// All launchers, in the order in which the CAD systems are searched for and the launchers are configured.
/// The order on the page is that of gridRow.
std::span<const CadSystem> cadSystems();

const CadSystem &cadSystem(Launcher launcher);

/// The programs of cadSystems() and of CAD systems that have no launcher, in the order of their places.
QList<GuardedProgram> guardedCadPrograms();

/// How the search sets a check box.
struct CheckBoxState
{
    Launcher launcher;
    std::optional<QString> label; ///< std::nullopt if the CAD system was not found
};

/// The results of a search for CAD systems.
struct CadSearch
{
    CadPackages packages;
    QList<CheckBoxState> checkBoxes; ///< one for each launcher
    QStringList lines;               ///< of the log, in order
};

/// Searches the registry for the CAD systems that have a launcher. foundWord begins the log's lines about
/// what was found. Missing keys and values read as empty; the search cannot fail.
CadSearch searchCadPackages(const RegistryListing &registry, const QString &foundWord);

} // namespace Nvx::Cad
