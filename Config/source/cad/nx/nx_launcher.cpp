#include "cad/nx/nx_launcher.h"

#include "cad/cad_packages.h"
#include "cad/foreign_file.h"
#include "cad/nx/nx_custom_dirs.h"
#include "nvx_util/whole_file.h"
#include "run/launcher_boxes.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(NxLauncher)
};

QString customDirsPath(const QString &nxInstallDir)
{
    return nxInstallDir + QDir::toNativeSeparators(QStringLiteral("/UGII/MENUS/custom_dirs.dat"));
}

QString backupOf(const QString &menu)
{
    return menu + QStringLiteral(".bak");
}

void removeLines(const StepContext &context, const QString &menu)
{
    if (!QFile::exists(menu))
        return;
    const std::optional<QByteArray> contents = readForeignFile(menu);
    if (contents)
        replaceForeignFile(menu, withoutCustomDirsLines(*contents, context.state.installDir));
}

void keepBackup(const StepContext &context, const QString &menu)
{
    const QString backup = backupOf(menu);
    if (QFile::exists(backup))
        return;
    context.reporter.log(LogLevel::step, Messages::tr("Copying %1 to %2").arg(menu, backup));
    if (!QFile::exists(menu))
        return;
    // Whole or not at all: a backup is made once and never again.
    const std::optional<QByteArray> contents = readForeignFile(menu);
    if (contents)
        replaceForeignFile(backup, *contents);
}

void addLine(const StepContext &context, const QString &menu, const QString &line)
{
    std::optional<QByteArray> old = QByteArray();
    if (QFile::exists(menu)) {
        context.reporter.log(LogLevel::step, Messages::tr("Checking") + menu);
        old = readForeignFile(menu);
    }
    if (!old || holdsCustomDirsLine(*old, line))
        return;

    const std::optional<QByteArray> written = toForeignText(context.reporter, menu, line);
    if (!written)
        return;
    context.reporter.log(LogLevel::step, Messages::tr("Creating") + menu);
    replaceForeignFile(menu, *old + *written);
}

} // namespace

void installNXLauncher(const StepContext &context, const CadPackages &packages, const LauncherBoxes &boxes,
                       RunMode mode)
{
    if (!boxes.isTicked(Launcher::Nx))
        return;
    context.reporter.progress(LogLevel::step, QStringLiteral("UGNX"));
    for (size_t version = 0; version < packages.nxInstallDirs.size(); ++version) {
        const QString &installDir = packages.nxInstallDirs.at(version);
        if (installDir.isEmpty())
            continue;
        const QString menu = customDirsPath(installDir);
        for (const QString &file : {menu, backupOf(menu)})
            Nvx::Util::removeUnfinished(file);
        if (mode != RunMode::Install) {
            removeLines(context, menu);
            continue;
        }
        keepBackup(context, menu);
        addLine(context, menu, customDirsLine(context.state.installDir, packages.nxKeys.at(version)));
    }
}
