#include "cad/creo/creo.h"

#include "cad/cad_packages.h"
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

struct CreoProbe
{
    Detection &detection;
    QString &label;
    CreoInstall install;

    // Reads the key of a release, whose sub-keys are date codes. Returns false if it is empty.
    bool read(const QString &key)
    {
        detection.logRegistryKey(u"PTC Creo Parametric %1.0"_s.arg(install.release), key);
        const QList<ListedValue> values = detection.sortedValuesBelow(key);
        for (const ListedValue &value : values)
            take(value);
        return !values.isEmpty();
    }

    void take(const ListedValue &value)
    {
        const QString name = upperLevelOf(value.name, 1);
        if (name == "INSTALLDIR"_L1) {
            install.installDir = value.text;
            detection.packages.creoVersion = install.release;
            label += u" %1.0"_s.arg(install.release);
            detection.logUsing(u"PTC Creo Parametric %1"_s.arg(install.release), value.text);
        } else if (name == "SHIPCODE"_L1) {
            install.shipCode = value.text;
        }
    }
};

// The key of a 32-bit release; empty for release 1, which has none. Release 3 spells the product's name
// differently.
QString key32(int release)
{
    switch (release) {
    case 2:
        return u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\Creo Parametric\\2.0"_s;
    case 3:
        return u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\PTC Creo Parametric\\3.0"_s;
    default:
        return QString();
    }
}

} // namespace

std::optional<QString> detectCreo(Detection &detection)
{
    CadPackages &packages = detection.packages;
    QString label = u"Creo Parametric"_s;
    for (int release = firstCreoRelease; release <= lastCreoRelease; ++release) {
        CreoProbe probe{detection, label, {release, QString(), QString()}};
        const bool holdsAnything =
            probe.read(u"HKEY_LOCAL_MACHINE\\Software\\PTC\\Creo Parametric\\%1.0"_s.arg(release));
        if (!holdsAnything && !key32(release).isEmpty())
            probe.read(key32(release));
        if (!probe.install.installDir.isEmpty() || !probe.install.shipCode.isEmpty())
            packages.creoInstalls.append(probe.install);
    }
    if (packages.creoVersion == 0)
        return std::nullopt;
    detection.logUsing(u"ProE Creo %1"_s.arg(packages.creoVersion),
                       packages.creoInstall(packages.creoVersion).installDir);
    return label;
}

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
