#include "cad/creo/creo_launcher.h"

#include "cad/cad_packages.h"
#include "cad/creo/creo_names.h"
#include "cad/creo/protk_file.h"
#include "cad/foreign_file.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/launcher_boxes.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(CreoLauncher)
};

void sweepProgramFolder(const StepContext &context, RunMode mode)
{
    for (int release = firstCreoRelease; release <= lastCreoRelease; ++release) {
        const QString path =
            Nvx::Util::joinPath(context.machine.executableFolder(), creoLauncherLibrary(release));
        context.reporter.log(LogLevel::step,
                             context.state.modeWord(mode) + Messages::tr(" Creo Remove:") + path);
        removeProductFile(path);
    }
}

void removeEntries(const StepContext &context, const QString &protk)
{
    Nvx::Util::removeUnfinished(protk);
    if (!QFile::exists(protk))
        return;
    context.reporter.log(LogLevel::step, Messages::tr("Removing Ostrade from:") + protk);
    const std::optional<QByteArray> contents = readForeignFile(protk);
    if (!contents)
        return;
    context.reporter.log(LogLevel::step, Messages::tr("Writing ") + protk);
    replaceForeignFile(protk, withoutLauncherEntries(*contents));
}

void addEntry(const StepContext &context, const QString &protk, int release)
{
    const QString text = creoEntry(context.machine.executableFolder(), context.state.installDir, release);
    const std::optional<QByteArray> entry = toForeignText(context.reporter, protk, text);
    if (!entry)
        return;

    std::optional<QByteArray> old = QByteArray();
    if (!QFile::exists(protk))
        context.reporter.log(LogLevel::step, Messages::tr("Creating  ") + protk);
    else
        old = readForeignFile(protk);
    if (!old)
        return;

    const std::optional<QByteArray> contents = withLauncherEntry(*old, *entry);
    if (!contents) {
        context.reporter.log(
            LogLevel::step, Messages::tr("Ostrade %1 already exists, do nothing").arg(Nvx::Product::release));
        return;
    }
    context.reporter.log(LogLevel::step, Messages::tr("Writing ") + protk);
    replaceForeignFile(protk, *contents);
}

template<typename Act>
void forEachRelease(const CadPackages &packages, Act act)
{
    for (int release = firstCreoRelease; release <= lastCreoRelease; ++release) {
        const auto place = static_cast<size_t>(release);
        const QString &installDir = packages.creoInstallDirs.at(place);
        // Without a folder the path would lead to the drive's own "\text", or to another machine.
        if (!installDir.isEmpty())
            act(protkPath(installDir, packages.creoShipCodes.at(place), release), release);
    }
}

} // namespace

void installCreoLauncher(const StepContext &context, const CadPackages &packages, const LauncherBoxes &boxes,
                         RunMode mode)
{
    sweepProgramFolder(context, mode);
    if (!boxes.isTicked(Launcher::Creo))
        return;

    context.reporter.progress(LogLevel::step, QStringLiteral("ProE Creo"));
    forEachRelease(packages, [&](const QString &protk, int) { removeEntries(context, protk); });
    if (mode != RunMode::Install)
        return;
    forEachRelease(packages, [&](const QString &protk, int release) { addEntry(context, protk, release); });
}
