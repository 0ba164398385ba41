#pragma once

#include "cad/cad_packages.h"
#include "cad/launcher_check_boxes.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace Nvx::Cad {

class RegistryListing;

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
