#include "cad/solidworks/solidworks.h"

#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "run/reporter.h"

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

void probe(Detection &detection, int year)
{
    CadPackages &packages = detection.packages;
    const QString version = u"SolidWorks %1"_s.arg(year);
    const QString key = u"HKEY_LOCAL_MACHINE\\Software\\SolidWorks\\%1\\Setup"_s.arg(version);
    detection.logRegistryKey(version, key);
    const QList<ListedValue> values = detection.sortedValuesBelow(key);
    for (const ListedValue &value : values) {
        detection.log(value.name);
        if (!value.name.toUpper().startsWith("SOLIDWORKS FOLDER"_L1))
            continue;
        packages.solidWorksInstallDir = value.text;
        packages.solidWorksVersion = year;
    }
    // For a year that is not installed, the previous year's folder is logged.
    detection.logInstallDir(version, packages.solidWorksInstallDir);
}

} // namespace

std::optional<QString> detectSolidWorks(Detection &detection)
{
    for (int year = 2008; year <= 2016; ++year)
        probe(detection, year);
    const int version = detection.packages.solidWorksVersion;
    detection.logFound(u"Solidworks=%1"_s.arg(version));
    if (version == 0)
        return std::nullopt;
    return u"SolidWorks %1"_s.arg(version);
}

void installSolidWorksLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::SolidWorks))
        return;
    step.context.reporter.progress(LogLevel::step, u"SolidWorks"_s);
    configureComLibrary(step, u"Launchers/SolidWorks/NVX_2017_SolidWorks.dll"_s);
}

} // namespace Nvx::Cad
