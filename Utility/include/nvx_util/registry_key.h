#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Nvx::Util {

/// A key of the registry's 64-bit view, given by its full path, such as
/// "HKEY_LOCAL_MACHINE\SOFTWARE\Velmora". Names of keys and values are not case-sensitive. Reading never
/// creates a key; a key that is missing or may not be opened has no values and no sub-keys.
///
/// On other systems than Windows the registry is the file "registry.json" in the folder given by the
/// environment variable NVX_MACHINE; without the variable the registry is empty and every change fails.
class RegistryKey
{
public:
    explicit RegistryKey(QString path);

    QString path() const { return m_path; }

    /// True if the key has at least one value or sub-key.
    bool hasEntries() const;

    /// The names of the values, in the registry's order; the name of the default value is empty.
    QStringList valueNames() const;

    /// The names of the direct sub-keys, in the registry's order.
    QStringList subKeyNames() const;

    /// The string of a value; empty if it is missing or not a string. Variables in it are not expanded.
    std::optional<QString> text(const QString &valueName) const;

    /// The string of a value, or its number in decimal digits, read as signed; empty if it is missing or of
    /// another type.
    std::optional<QString> textOrNumber(const QString &valueName) const;

    /// Writes a string value, and creates the key if it is missing. False if access is denied.
    bool setText(const QString &valueName, const QString &text);

    /// The number of a value; empty if it is missing or not a 32-bit number.
    std::optional<quint32> number(const QString &valueName) const;

    /// Writes a 32-bit number, and creates the key if it is missing. False if access is denied.
    bool setNumber(const QString &valueName, quint32 number);

    /// Removes a value. True if it was missing, false if access is denied.
    bool removeValue(const QString &valueName);

    /// Removes the key with all its values and sub-keys. True if it was missing, false for a root or if
    /// access is denied.
    bool removeWhole();

private:
    QString m_path;
};

} // namespace Nvx::Util
