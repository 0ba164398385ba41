#include "cad/detection.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

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
