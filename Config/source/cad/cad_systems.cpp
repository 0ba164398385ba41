#include "cad/cad_systems.h"

#include "cad/brevant/brevant.h"
#include "cad/cad_packages.h"
#include "cad/creo/creo.h"
#include "cad/nx/nx.h"
#include "cad/solidworks/solidworks.h"
#include "cad/spaceclaim/spaceclaim.h"
#include "cad/tamsel/tamsel.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

constexpr std::array systems{
    CadSystem{.launcher = Launcher::Brevant,
              .objectName = "m_cbBrevant"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "Brevant"),
              .gridRow = 9,
              .program = GuardedProgram{"BREVANT.EXE"_L1, "Brevant"_L1, 4},
              .detect = detectBrevant,
              .install = installBrevantLauncher},
    CadSystem{.launcher = Launcher::Creo,
              .objectName = "m_cbCreo"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "Pro/ENGINEER Creo"),
              .gridRow = 7,
              .program = GuardedProgram{"XTOP.EXE"_L1, "Wildfire"_L1, 1},
              .detect = detectCreo,
              .install = installCreoLauncher},
    CadSystem{.launcher = Launcher::SolidWorks,
              .objectName = "m_cbSolidworks"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "SolidWorks"),
              .gridRow = 8,
              .program = GuardedProgram{"SLDWORKS.EXE"_L1, "SolidWorks"_L1, 2},
              .detect = detectSolidWorks,
              .install = installSolidWorksLauncher},
    CadSystem{.launcher = Launcher::Nx,
              .objectName = "UGS NX"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "UGS NX"),
              .gridRow = 10,
              .detect = detectNx,
              .install = installNxLauncher},
    CadSystem{.launcher = Launcher::Tamsel,
              .objectName = "Tamsel"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "Tamsel"),
              .gridRow = 12,
              .detect = detectTamsel,
              .install = installTamselLauncher},
    CadSystem{.launcher = Launcher::TamselArchitecture,
              .objectName = "Tamsel ARCH"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "Tamsel Architecture"),
              .gridRow = 13,
              .detect = detectTamselArchitecture,
              .install = installTamselArchitectureLauncher},
    CadSystem{.launcher = Launcher::TamselMep,
              .objectName = "Tamsel MEP"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "Tamsel MEP"),
              .gridRow = 14,
              .detect = detectTamselMep,
              .install = installTamselMepLauncher},
    CadSystem{.launcher = Launcher::SpaceClaim,
              .objectName = "m_cbSpaceclaim"_L1,
              .label = QT_TRANSLATE_NOOP("FeaturePage", "SpaceClaim"),
              .gridRow = 16,
              .program = GuardedProgram{"SPACECLAIM.EXE"_L1, "Spaceclaim"_L1, 3},
              .detect = detectSpaceClaim,
              .install = installSpaceClaimLauncher},
};

constexpr bool isInOrderOfLaunchers()
{
    for (std::size_t i = 0; i < systems.size(); ++i) {
        if (systems[i].launcher != static_cast<Launcher>(i))
            return false;
    }
    return true;
}
static_assert(isInOrderOfLaunchers(), "cadSystem() finds a launcher by its position");

// The programs of CAD systems that have no launcher.
constexpr std::array otherPrograms{
    GuardedProgram{"SOLIDDESIGNER.EXE"_L1, "SolidDesigner"_L1, 5},
    GuardedProgram{"EDGE.EXE"_L1, "SolidEdge"_L1, 6},
};

} // namespace

std::span<const CadSystem> cadSystems()
{
    return systems;
}

const CadSystem &cadSystem(Launcher launcher)
{
    return systems[static_cast<std::size_t>(launcher)];
}

QList<GuardedProgram> guardedCadPrograms()
{
    QList<GuardedProgram> programs;
    for (const CadSystem &system : systems) {
        if (system.program)
            programs.append(*system.program);
    }
    programs.append(QList<GuardedProgram>(otherPrograms.begin(), otherPrograms.end()));
    std::ranges::sort(programs, {}, &GuardedProgram::place);
    return programs;
}

CadSearch searchCadPackages(const RegistryListing &registry, const QString &foundWord)
{
    Detection detection{registry, foundWord, CadPackages(), QStringList()};
    QList<CheckBoxState> checkBoxes;
    for (const CadSystem &system : cadSystems())
        checkBoxes.append({system.launcher, system.detect(detection)});
    return {detection.packages, checkBoxes, detection.lines};
}

} // namespace Nvx::Cad
