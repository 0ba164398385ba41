#include "setup/viewer_configuration.h"

#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/reporter.h"

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ViewerConfiguration)
};

} // namespace

int configureViewer(const StepContext &context, RunMode mode)
{
    context.reporter.log(LogLevel::step, Messages::tr("Running NVX 3D-ViewerConfig."));
    const QString program =
        Nvx::Util::joinPath(context.state.installDir, QStringLiteral("NVX Viewer/NVXViewerConfig.exe"));
    const QStringList arguments =
        mode == RunMode::Install ? QStringList{QStringLiteral("-i")} : QStringList();
    CommandRunner(context).runCommand(program, arguments, QString());
    return 0;
}
