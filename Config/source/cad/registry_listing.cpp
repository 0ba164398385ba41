#include "cad/registry_listing.h"

#include "nvx_util/registry_key.h"

using Nvx::Util::RegistryKey;

namespace Nvx::Cad {

namespace {

void listInto(QList<ListedValue> &values, const QString &path, const QString &prefix)
{
    const RegistryKey key(path);
    const QStringList valueNames = key.valueNames();
    for (const QString &name : valueNames)
        values.append({prefix + listedName(name), key.textOrNumber(name).value_or(QString())});
    const QStringList subKeys = key.subKeyNames();
    for (const QString &subKey : subKeys)
        listInto(values, path + u'\\' + subKey, prefix + listedName(subKey) + u'/');
}

} // namespace

QList<ListedValue> MachineRegistryListing::valuesBelow(const QString &key) const
{
    QList<ListedValue> values;
    listInto(values, key, QString());
    return values;
}

QString MachineRegistryListing::valueOf(const QString &key, const QString &valueName) const
{
    return RegistryKey(key).textOrNumber(valueName).value_or(QString());
}

} // namespace Nvx::Cad
