#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/start_up.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/own_process.h"

#include <QApplication>

int main(int /*argc*/, char *argv[])
{
    Nvx::Util::trustOwnFolderOnly();
    Nvx::Util::trustSystemsFoldersOnly();
    // Qt has options of its own, such as -platformpluginpath. Ours are read from the whole command line.
    int argumentCount = 1;
    const QApplication application(argumentCount, argv);
    Nvx::Util::NativeMachine machine;
    cfg_utilitys engine(machine);
    return Nvx::Wizard::runProgram(engine);
}
