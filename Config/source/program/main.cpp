#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/start_up.h"
#include "nvx_util/native_machine.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    Nvx::Util::NativeMachine machine;
    cfg_utilitys engine(machine);
    return Nvx::Wizard::runProgram(engine);
}
