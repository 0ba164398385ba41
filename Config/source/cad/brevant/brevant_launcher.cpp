#include "cad/brevant/brevant.h"
#include "cad/com_registration.h"
#include "cad/launcher_step.h"
#include "run/reporter.h"

#include <QCoreApplication>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(BrevantLauncher)
};

} // namespace

void installBrevantLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::Brevant))
        return;
    step.context.reporter.progress(LogLevel::step, Messages::tr("Configure Brevant"));
    configureComLibrary(step, u"Launchers/Brevant/NVX_2017_Brevant.dll"_s);
}

} // namespace Nvx::Cad
