#include "cad/nx/nx.h"

#include "cad/cad_packages.h"
#include "cad/foreign_file.h"
#include "cad/launcher_step.h"
#include "cad/nx/nx_custom_dirs.h"
#include "cad/nx/nx_versions.h"
#include "nvx_util/whole_file.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

QString nameOf(int index)
{
    return u"UGNX "_s + nxVersions[static_cast<size_t>(index)];
}

void probe(Detection &detection, int index)
{
    const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\"_s +
                        nxVersions[static_cast<size_t>(index)];
    detection.logRegistryKey(nameOf(index), key);
    std::optional<NxInstall> install;
    const QList<ListedValue> values = detection.sortedValuesBelow(key);
    for (const ListedValue &value : values) {
        if (upperLevelOf(value.name, 0) == "UGII_BASE_DIR"_L1)
            install = {.index = index, .installDir = value.text, .registryKey = key};
    }
    detection.logInstallDir(nameOf(index), install ? install->installDir : QString());
    if (!install)
        return;
    detection.packages.nxIndex = index;
    detection.packages.nxInstalls.append(*install);
}

} // namespace

std::optional<QString> detectNx(Detection &detection)
{
    for (int index = 0; index < static_cast<int>(nxVersions.size()); ++index)
        probe(detection, index);
    const CadPackages &packages = detection.packages;
    detection.logFound(u"UGNX=%1"_s.arg(packages.nxIndex));
    if (packages.nxIndex < 0)
        return std::nullopt;

    QString label = u"UGS NX"_s;
    for (const NxInstall &install : packages.nxInstalls) {
        if (install.installDir.isEmpty())
            continue;
        label += u' ' + nxVersions[static_cast<size_t>(install.index)];
        detection.logUsing(nameOf(install.index), install.installDir);
    }
    return label;
}

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(NxLauncher)
};

QString customDirsPath(const QString &nxInstallDir)
{
    return nxInstallDir + QDir::toNativeSeparators(u"/UGII/MENUS/custom_dirs.dat"_s);
}

QString backupOf(const QString &menu)
{
    return menu + u".bak"_s;
}

void removeLines(const StepContext &context, const QString &menu)
{
    if (!QFile::exists(menu))
        return;
    const std::optional<QByteArray> contents = readForeignFile(menu);
    if (contents)
        replaceForeignFile(menu, withoutCustomDirsLines(*contents, context.state.installDir));
}

void backUp(const StepContext &context, const QString &menu)
{
    const QString backup = backupOf(menu);
    if (QFile::exists(backup))
        return;
    context.reporter.log(LogLevel::step, Messages::tr("Copying %1 to %2").arg(menu, backup));
    if (!QFile::exists(menu))
        return;
    // Whole or not at all: the backup is made only once.
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

void installNxLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::Nx))
        return;
    const StepContext &context = step.context;
    context.reporter.progress(LogLevel::step, u"UGNX"_s);
    for (const NxInstall &install : step.packages.nxInstalls) {
        if (install.installDir.isEmpty())
            continue;
        const QString menu = customDirsPath(install.installDir);
        for (const QString &file : {menu, backupOf(menu)})
            Util::removeUnfinished(file);
        if (!step.isInstall()) {
            removeLines(context, menu);
            continue;
        }
        backUp(context, menu);
        addLine(context, menu, customDirsLine(context.state.installDir, install.registryKey));
    }
}

} // namespace Nvx::Cad
