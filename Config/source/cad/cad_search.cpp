#include "cad/cad_search.h"

#include "cad/cad_systems.h"
#include "cad/detection.h"

namespace Nvx::Cad {

CadSearch searchCadPackages(const RegistryListing &registry, const QString &foundWord)
{
    Detection detection{registry, foundWord, CadPackages(), QStringList()};
    QList<CheckBoxState> checkBoxes;
    for (const CadSystem &system : cadSystems())
        checkBoxes.append({system.launcher, system.detect(detection)});
    return {detection.packages, checkBoxes, detection.lines};
}

} // namespace Nvx::Cad
