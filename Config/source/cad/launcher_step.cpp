#include "cad/launcher_step.h"

#include "nvx_util/system.h"
#include "run/command_runner.h"

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

void configureComLibrary(const LauncherStep &step, const QString &library)
{
    const QString registrar = u"regsvr32"_s;
    const QString unregister = u"-u"_s;
    const QString silently = u"-s"_s;
    const QString path = Util::joinPath(step.context.state.installDir, library);

    CommandRunner runner(step.context);
    runner.runSystemCommand(registrar, {unregister, silently, path}, QString());
    if (step.isInstall())
        runner.runSystemCommand(registrar, {silently, path}, QString());
}

} // namespace Nvx::Cad
