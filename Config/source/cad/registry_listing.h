#pragma once

#include <QList>
#include <QString>

namespace Nvx::Cad {

/// A value in a listing of a registry key.
struct ListedValue
{
    /// Its path from the key, with "/" between the levels. A "/" in a name is listed as "\", and the default
    /// value as ".".
    QString name;
    QString text; ///< a number in decimal digits; empty if the value is neither text nor number
};

/// The name of a key or value in a listing.
inline QString listedName(QString nameInRegistry)
{
    if (nameInRegistry.isEmpty())
        return QStringLiteral(".");
    return nameInRegistry.replace(u'/', u'\\');
}

/// The registry as the search for CAD systems reads it: keys by their full paths. A missing key is empty.
class RegistryListing
{
public:
    RegistryListing() = default;
    RegistryListing(const RegistryListing &) = delete;
    RegistryListing &operator=(const RegistryListing &) = delete;
    virtual ~RegistryListing() = default;

    /// The values of a key and of all keys below it, in the registry's order; those of a key come before
    /// those of its sub-keys.
    virtual QList<ListedValue> valuesBelow(const QString &key) const = 0;

    /// The text of one value of a key; empty if it is missing.
    virtual QString valueOf(const QString &key, const QString &valueName) const = 0;
};

/// The registry of the machine.
class MachineRegistryListing final : public RegistryListing
{
public:
    QList<ListedValue> valuesBelow(const QString &key) const override;
    QString valueOf(const QString &key, const QString &valueName) const override;
};

} // namespace Nvx::Cad
