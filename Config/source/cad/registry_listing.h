#pragma once

#include <QList>
#include <QString>

/// A value in a listing of a registry key.
struct ListedValue
{
    /// Its path from the key on, "/" between the levels. A "/" in a name of the registry is listed as "\",
    /// and the default value as ".".
    QString name;
    QString text; ///< a number in decimal digits; empty when it is neither text nor number
};

/// How the name of a key or value stands in a listing.
inline QString listedName(QString nameInRegistry)
{
    if (nameInRegistry.isEmpty())
        return QStringLiteral(".");
    return nameInRegistry.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

/// What the search for CAD systems looks at: keys of the registry, named by their whole paths. A key that is
/// missing holds nothing.
class RegistryListing
{
public:
    RegistryListing() = default;
    RegistryListing(const RegistryListing &) = delete;
    RegistryListing &operator=(const RegistryListing &) = delete;
    virtual ~RegistryListing() = default;

    /// The values of a key and of all keys below it, in the registry's order, those of a key before those of
    /// its sub-keys.
    virtual QList<ListedValue> valuesBelow(const QString &key) const = 0;

    /// The text of one value of a key; empty when it is missing.
    virtual QString valueOf(const QString &key, const QString &valueName) const = 0;
};
