#include "cad/cad_detectors.h"

namespace {

void probe(const Detection &detection, int year)
{
    CadPackages &packages = detection.packages();
    const QString version = QStringLiteral("SolidWorks %1").arg(year);
    const QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\SolidWorks\\%1\\Setup").arg(version);
    detection.logRegistryKey(version, key);
    const QList<ListedValue> values = detection.sortedValuesBelow(key);
    for (const ListedValue &value : values) {
        detection.log(value.name);
        const QString name = value.name.toUpper();
        if (!name.startsWith(QLatin1String("SOLIDWORKS FOLDER")))
            continue;
        packages.solidWorksInstallDir = value.text;
        packages.solidWorksVersion = year;
    }
    // A year that is not there is told the folder of the one before.
    detection.logInstallDir(version, packages.solidWorksInstallDir);
}

} // namespace

void detectSolidWorks(const Detection &detection)
{
    const CadPackages &packages = detection.packages();
    for (int year = 2008; year <= 2016; ++year)
        probe(detection, year);
    detection.setBox(Launcher::SolidWorks, packages.solidWorksVersion != 0,
                     QStringLiteral("SolidWorks %1").arg(packages.solidWorksVersion));
    detection.logFound(QStringLiteral("Solidworks=%1").arg(packages.solidWorksVersion));
}
