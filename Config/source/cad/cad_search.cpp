#include "cad/cad_search.h"

#include "cad/cad_detectors.h"

#include <algorithm>

void Detection::logRegistryKey(const QString &versionName, const QString &key) const
{
    log(QStringLiteral("%1 RegKey=%2").arg(versionName, key));
}

void Detection::logInstallDir(const QString &versionName, const QString &dir) const
{
    log(CadSearch::tr("%1 Install Dir:%2").arg(versionName, dir));
}

void Detection::logUsing(const QString &versionName, const QString &dir) const
{
    log(CadSearch::tr("Using %1 Install Dir:%2").arg(versionName, dir));
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
    return listedName.split(QLatin1Char('/'), Qt::SkipEmptyParts).value(level).toUpper();
}

CadSearch searchCadPackages(const RegistryListing &registry, const QString &foundWord)
{
    CadSearch search;
    const Detection detection{registry, foundWord, search};
    detectBrevant(detection);
    detectCreo(detection);
    detectSolidWorks(detection);
    detectNx(detection);
    detectTamsel(detection);
    detectSpaceClaim(detection);
    return search;
}
