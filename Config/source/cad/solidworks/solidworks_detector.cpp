#include "cad/detection.h"
#include "cad/solidworks/solidworks.h"

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

} // namespace Nvx::Cad
