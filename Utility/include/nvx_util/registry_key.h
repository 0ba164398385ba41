#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Nvx::Util {

/// One key of the registry, in its 64-bit view, named by its whole path from the root on, such as
/// "HKEY_LOCAL_MACHINE\SOFTWARE\Velmora". Keys and value names are compared without case. Looking at a key
/// never creates it; a key that is missing or closed to us has no values and no sub-keys.
///
/// Where there is no Windows, the registry is the file "registry.json" in the folder that the environment
/// variable NVX_MACHINE names; without the variable everything is missing and every change fails.
class RegistryKey
{
public:
    explicit RegistryKey(QString path);

    QString path() const { return m_path; }

    /// True when the key has at least one value or sub-key.
    bool hasEntries() const;

    /// The names of the values, in the registry's order; the default value's name is empty.
    QStringList valueNames() const;

    /// The names of the direct sub-keys, in the registry's order.
    QStringList subKeyNames() const;

    /// The text of a value; nothing when it is missing or holds no text. Variables in it are not expanded.
    std::optional<QString> text(const QString &valueName) const;

    /// The text of a value, for a number its decimal digits, those of a signed one; nothing when it is
    /// missing or of another kind.
    std::optional<QString> textOrNumber(const QString &valueName) const;

    /// Writes a text value, making the key when it is missing. False when the registry refuses.
    bool setText(const QString &valueName, const QString &text);

    /// The number of a value; nothing when it is missing or holds no number of 32 bits.
    std::optional<quint32> number(const QString &valueName) const;

    /// Writes a number of 32 bits, making the key when it is missing. False when the registry refuses.
    bool setNumber(const QString &valueName, quint32 number);

    /// Removes a value. False when the registry refuses; a value that is missing counts as removed.
    bool removeValue(const QString &valueName);

    /// Removes the key with all its values and sub-keys. False when the registry refuses, as it does for a
    /// root; a key that is missing counts as removed.
    bool removeWhole();

private:
    QString m_path;
};

} // namespace Nvx::Util
