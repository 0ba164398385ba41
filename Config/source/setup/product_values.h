#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace Nvx::Setup {

/// A registry value to write.
struct RegistryValue
{
    QString key; ///< full path
    QString name;
    std::variant<QString, quint32> content;
};

/// The properties of an installation that the registry records.
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

/// The values for all users, in the order in which they are written.
QList<RegistryValue> machineValues(const ProductRecord &record);

/// The values for the user, in the order in which they are written. They mark the first start of the
/// notification centre as completed and switch its notifications off.
QList<RegistryValue> userValues(const QString &locale);

/// The country of a locale: its fourth and fifth characters, in upper case; "US" if there are none.
QString countryCodeOf(const QString &locale);

/// The command of the uninstall entry for another language: the command up to and including the character
/// after its first "/LANG", followed by the locale; the rest is dropped. std::nullopt, for a command to be
/// left alone, if "/LANG" does not occur in it, in upper case, or is at its start.
std::optional<QString> uninstallCommandIn(const QString &command, const QString &locale);

} // namespace Nvx::Setup
