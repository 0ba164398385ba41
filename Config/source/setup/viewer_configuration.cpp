#include "setup/viewer_configuration.h"

#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/reporter.h"

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ViewerConfiguration)
};

} // namespace

int configureViewer(const StepContext &context, RunMode mode)
{
    context.reporter.log(LogLevel::step, Messages::tr("Running NVX 3D-ViewerConfig."));
    const QString program = Util::joinPath(context.state.installDir, u"NVX Viewer/NVXViewerConfig.exe"_s);
    const QStringList arguments = mode == RunMode::Install ? QStringList{u"-i"_s} : QStringList();
    CommandRunner(context).runCommand(program, arguments, QString());
    return 0;
}

} // namespace Nvx::Setup
