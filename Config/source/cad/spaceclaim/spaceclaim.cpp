#include "cad/spaceclaim/spaceclaim.h"

#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "cad/shared_folders.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Nvx::Util::joinPath;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

std::optional<QString> detectSpaceClaim(Detection &detection)
{
    const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location"_s;
    const bool found = !detection.registry.valuesBelow(key).isEmpty();
    detection.packages.spaceClaimFound = found;
    detection.logFound(u"Spaceclaim=%1"_s.arg(found ? 1 : 0));
    if (!found)
        return std::nullopt;
    return u"SpaceClaim "_s;
}

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(SpaceClaimLauncher)
};

// Creates the folder. All users may create folders next to it, and SpaceClaim runs what it contains for every
// user, so the folder is for administrators to write. False if somebody else decides where it is or what it
// contains.
bool prepareFolder(const StepContext &context, const QString &folder)
{
    const auto way = Util::HeldWay::toFolder(QFileInfo(folder).path());
    if (!isTrustedWay(context.reporter, way, folder))
        return false;
    // A path of another operating system would become an oddly named folder in the working folder.
    if (QDir::isAbsolutePath(folder))
        QDir().mkdir(folder);
    return !QFileInfo(folder).isDir() || reserveFolder(context.reporter, folder);
}

} // namespace

void installSpaceClaimLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::SpaceClaim))
        return;
    const StepContext &context = step.context;
    context.reporter.progress(LogLevel::step, u"SpaceClaim"_s);

    const QStringList addinFiles{u"NVX_2017_SpaceClaim.dll"_s, u"NVX_2017_SpaceClaim.xml"_s};
    const QString target = step.folders.spaceClaimAddin;
    for (const QString &file : addinFiles)
        removeProductFile(joinPath(target, file));
    if (!step.isInstall())
        return;

    const QString source = joinPath(context.state.installDir, u"Launchers/SpaceClaim"_s);
    for (const QString &file : addinFiles)
        context.reporter.log(
            LogLevel::step,
            Messages::tr("Copying:%1 to: %2").arg(joinPath(source, file), joinPath(target, file)));
    if (!prepareFolder(context, target))
        return;
    for (const QString &file : addinFiles)
        QFile::copy(joinPath(source, file), joinPath(target, file));
}

} // namespace Nvx::Cad
