#include "cfg_utilities/installation_steps.h"

#include "cfg_utilities/cfg_utilitys.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "setup/install_folder.h"

namespace Nvx::Engine {

namespace {

template<auto operation>
void call(const StepArguments &arguments)
{
    (arguments.engine.*operation)(arguments.mode);
}

constexpr InstallationStep steps[] = {
    {"reserveInstallFolder", [](const StepArguments &a) { Setup::reserveInstallFolder(a.context, a.mode); }},
    {"installTutorials", call<&cfg_utilitys::installTutorials>},
    {"installPython", call<&cfg_utilitys::installPython>},
    {"installMertleServer", call<&cfg_utilitys::installMertleServer>},
    {"createParallelConfiguration",
     [](const StepArguments &a) { a.engine.createParallelConfiguration(a.mode, a.cpuInfo); }},
    {"updateRegistry", call<&cfg_utilitys::updateRegistry>},
    {"createFileAssociations", call<&cfg_utilitys::createFileAssociations>},
    // The registered service may be of an older version, so it is always removed first.
    {"uninstallServer", [](const StepArguments &a) { a.engine.uninstallServer(); }},
    {"installServer",
     [](const StepArguments &a) {
         if (a.mode == Run::RunMode::Install)
             a.engine.installServer();
     }},
    {"createShortcuts", call<&cfg_utilitys::createShortcuts>},
    {"installLaunchers", call<&cfg_utilitys::installLaunchers>},
    {"notifyAssociationsChanged",
     [](const StepArguments &a) { a.context.machine.notifyAssociationsChanged(); }},
    {"processFlagFile", [](const StepArguments &a) { a.engine.processFlagFile(Product::flagsFile, a.mode); }},
    {"checkMaterialDatabase", call<&cfg_utilitys::checkMaterialDatabase>},
    {"cleanLumara", call<&cfg_utilitys::cleanLumara>},
};

} // namespace

std::span<const InstallationStep> installationSteps()
{
    return steps;
}

} // namespace Nvx::Engine
