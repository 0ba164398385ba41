#include "cad/cad_packages.h"
#include "cad/creo/creo.h"
#include "cad/creo/creo_names.h"
#include "cad/creo/protk_file.h"
#include "cad/foreign_file.h"
#include "cad/launcher_step.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QFile>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(CreoLauncher)
};

void sweepProgramFolder(const LauncherStep &step)
{
    const StepContext &context = step.context;
    for (int release = firstCreoRelease; release <= lastCreoRelease; ++release) {
        const QString path = Util::joinPath(context.machine.executableFolder(), creoLauncherLibrary(release));
        context.reporter.log(LogLevel::step,
                             context.state.modeWord(step.mode) + Messages::tr(" Creo Remove:") + path);
        removeProductFile(path);
    }
}

void removeEntries(const StepContext &context, const QString &protk)
{
    Util::removeUnfinished(protk);
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
        context.reporter.log(LogLevel::step,
                             Messages::tr("Ostrade %1 already exists, do nothing").arg(Product::release));
        return;
    }
    context.reporter.log(LogLevel::step, Messages::tr("Writing ") + protk);
    replaceForeignFile(protk, *contents);
}

template<typename Act>
void forEachProtk(const CadPackages &packages, Act act)
{
    for (const CreoInstall &install : packages.creoInstalls) {
        // Without a folder the path would be "\text" on the current drive, or on another machine.
        if (!install.installDir.isEmpty())
            act(protkPath(install.installDir, install.shipCode, install.release), install.release);
    }
}

} // namespace

void installCreoLauncher(const LauncherStep &step)
{
    sweepProgramFolder(step);
    if (!step.isChecked(Launcher::Creo))
        return;

    const StepContext &context = step.context;
    context.reporter.progress(LogLevel::step, u"ProE Creo"_s);
    forEachProtk(step.packages, [&](const QString &protk, int) { removeEntries(context, protk); });
    if (!step.isInstall())
        return;
    forEachProtk(step.packages,
                 [&](const QString &protk, int release) { addEntry(context, protk, release); });
}

} // namespace Nvx::Cad
