#include "setup/lumara.h"

#include "nvx_util/system.h"
#include "run/command_runner.h"

void cleanLumara(const StepContext &context, RunMode mode)
{
    if (mode != RunMode::Uninstall)
        return;
    CommandRunner runner(context);
    const QString installDir = context.state.installDir;
    runner.removeDirectory(Nvx::Util::joinPath(installDir, QStringLiteral("WebServices")));
    // Paths are compared in upper case, so these patterns match nothing and the files stay. That is how the
    // removal is agreed on; the patterns must not be "corrected".
    for (const auto &pattern : {QStringLiteral("Lumara.log"), QStringLiteral("lumara.xml"),
                                QStringLiteral("Kelvane_2014_WF50.dll")})
        runner.removeMatchingFiles(installDir, pattern);
}
