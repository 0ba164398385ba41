#include "cad/spaceclaim/spaceclaim_launcher.h"

#include "cad/shared_folders.h"
#include "nvx_util/system.h"
#include "run/launcher_boxes.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using Nvx::Util::joinPath;

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(SpaceClaimLauncher)
};

const QString addinLibrary = QStringLiteral("NVX_2017_SpaceClaim.dll");
const QString addinManifest = QStringLiteral("NVX_2017_SpaceClaim.xml");

} // namespace

void installSpaceClaimLauncher(const StepContext &context, const LauncherBoxes &boxes,
                               const SharedFolders &folders, RunMode mode)
{
    if (!boxes.isTicked(Launcher::SpaceClaim))
        return;
    context.reporter.progress(LogLevel::step, QStringLiteral("SpaceClaim"));

    const QString target = folders.spaceClaimAddin;
    removeProductFile(joinPath(target, addinManifest));
    removeProductFile(joinPath(target, addinLibrary));
    if (mode != RunMode::Install)
        return;

    // A path of another operating system would become a folder with an odd name below the working folder.
    if (QDir::isAbsolutePath(target))
        QDir().mkdir(target);
    const QString source = joinPath(context.state.installDir, QStringLiteral("Launchers/SpaceClaim"));
    for (const QString &file : {addinLibrary, addinManifest}) {
        const QString from = joinPath(source, file);
        context.reporter.log(LogLevel::step,
                             Messages::tr("Copying:%1 to: %2").arg(from, joinPath(target, file)));
    }
    for (const QString &file : {addinLibrary, addinManifest})
        QFile::copy(joinPath(source, file), joinPath(target, file));
}
