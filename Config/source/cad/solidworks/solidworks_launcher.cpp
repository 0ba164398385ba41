#include "cad/com_registration.h"
#include "cad/launcher_step.h"
#include "cad/solidworks/solidworks.h"
#include "run/reporter.h"

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

void installSolidWorksLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::SolidWorks))
        return;
    step.context.reporter.progress(LogLevel::step, u"SolidWorks"_s);
    configureComLibrary(step, u"Launchers/SolidWorks/NVX_2017_SolidWorks.dll"_s);
}

} // namespace Nvx::Cad
