#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "cad/shared_folders.h"
#include "cad/tamsel/tamsel.h"
#include "cad/tamsel/tamsel_manifest.h"
#include "nvx_util/system.h"
#include "run/diagnostics.h"
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

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(TamselLauncher)
};

QString manifestOfYear(const QString &root, int year)
{
    return joinPath(root, u"Velmora/Tamsel/Addins/%1/%2"_s.arg(QString::number(year), tamselManifestName));
}

void writeManifest(const StepContext &context, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        context.reporter.log(LogLevel::ofResult(file.error()),
                             Messages::tr("Open failed:") + file.errorString());
        return;
    }
    const QByteArray manifest = tamselManifest(context.state.installDir);
    if (file.write(manifest) != manifest.size())
        qCWarning(diagnostics, "Unable to write %ls", qUtf16Printable(path));
}

// A path of another operating system would become an oddly named folder in the working folder.
bool makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    return QDir::isAbsolutePath(folder) && Util::System::makePath(folder);
}

void copyManifest(const StepContext &context, const QString &manifest, const QString &target)
{
    context.reporter.log(LogLevel::step, Messages::tr("Copying:%1 to: %2").arg(manifest, target));
    QFile::copy(manifest, target);
}

void installEdition(const LauncherStep &step, Launcher launcher, TamselEdition edition, const QString &title)
{
    if (!step.isChecked(launcher))
        return;
    step.context.reporter.progress(LogLevel::step, title);
    for (const TamselInstall &install : step.packages.tamselInstalls) {
        if (install.edition == edition)
            installTamselAddin(step, install.year);
    }
}

} // namespace

void installTamselAddin(const LauncherStep &step, int year)
{
    const StepContext &context = step.context;
    const QString first = manifestOfYear(step.folders.formerApplicationData, year);
    const QString second = manifestOfYear(step.folders.applicationData, year);
    const QString manifest = joinPath(context.state.installDir, u"Launchers/Tamsel/"_s + tamselManifestName);

    context.reporter.log(LogLevel::step, Messages::tr("Tamsel Addin"));
    for (const QString &path : {first, second, manifest}) {
        context.reporter.log(LogLevel::step, Messages::tr("Removing:") + path);
        removeProductFile(path);
    }
    if (!step.isInstall())
        return;

    writeManifest(context, manifest);
    // The second try helps if another program creates one of the folders at the same moment. The second
    // target's folder is normally another name of the first one's; where it is missing, its copy fails, and
    // Tamsel reads the first one.
    if (!makeFolderOf(first))
        makeFolderOf(first);
    copyManifest(context, manifest, first);
    copyManifest(context, manifest, second);
}

void installTamselLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::Tamsel, TamselEdition::Plain, u"Tamsel"_s);
}

void installTamselArchitectureLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::TamselArchitecture, TamselEdition::Architecture, u"Tamsel Architecture"_s);
}

void installTamselMepLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::TamselMep, TamselEdition::Mep, u"Tamsel MEP"_s);
}

} // namespace Nvx::Cad
