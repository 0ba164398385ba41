#pragma once

#include <QList>
#include <QString>

#include <variant>

/// A value of the registry as a step writes it.
struct RegistryValue
{
    QString key; ///< whole path
    QString name;
    std::variant<QString, quint32> content;
};

/// What an installation tells the machine about the product.
struct ProductRecord
{
    QString analyzeDirectory;
    QString installDir;
    QString locale; ///< such as "de-DE"
    bool registry64 = false;
};

/// The product's key for all users of the machine.
QString machineProductKey();

/// The key of this version of the product for one user.
QString userProductKey();

/// The values written for all users, in their order.
QList<RegistryValue> machineValues(const ProductRecord &record);

/// The values written for the user, in their order: the notification centre has been through its first
/// start, and keeps quiet.
QList<RegistryValue> userValues(const QString &locale);

/// The country of a locale: its two characters from the fourth on, in upper case; "US" when there are none.
QString countryCodeOf(const QString &locale);
