#include "cad/cad_packages.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

CreoInstall CadPackages::creoInstall(int release) const
{
    for (const CreoInstall &install : creoInstalls) {
        if (install.release == release)
            return install;
    }
    return {};
}

QString CadPackages::tamselVersions(TamselEdition edition) const
{
    QString versions;
    for (const TamselInstall &install : tamselInstalls) {
        if (install.edition == edition)
            versions += u' ' + QString::number(install.year);
    }
    return versions;
}

void Detection::logRegistryKey(const QString &versionName, const QString &key)
{
    log(u"%1 RegKey=%2"_s.arg(versionName, key));
}

void Detection::logInstallDir(const QString &versionName, const QString &dir)
{
    log(tr("%1 Install Dir:%2").arg(versionName, dir));
}

void Detection::logUsing(const QString &versionName, const QString &dir)
{
    log(tr("Using %1 Install Dir:%2").arg(versionName, dir));
}

QList<ListedValue> Detection::sortedValuesBelow(const QString &key) const
{
    QList<ListedValue> values = registry.valuesBelow(key);
    std::stable_sort(values.begin(), values.end(),
                     [](const ListedValue &a, const ListedValue &b) { return a.name < b.name; });
    return values;
}

QString upperLevelOf(const QString &listedName, int level)
{
    return listedName.split(u'/', Qt::SkipEmptyParts).value(level).toUpper();
}

} // namespace Nvx::Cad
