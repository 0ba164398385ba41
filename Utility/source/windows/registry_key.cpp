#include "nvx_util/registry_key.h"

#include <utility>
#include <vector>

#include <windows.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

HKEY rootOf(QStringView name)
{
    static const std::pair<QLatin1String, HKEY> roots[] = {
        {"HKEY_LOCAL_MACHINE"_L1, HKEY_LOCAL_MACHINE},
        {"HKEY_CURRENT_USER"_L1, HKEY_CURRENT_USER},
        {"HKEY_CLASSES_ROOT"_L1, HKEY_CLASSES_ROOT},
        {"HKEY_USERS"_L1, HKEY_USERS},
    };
    for (const auto &[rootName, root] : roots) {
        if (name.compare(rootName, Qt::CaseInsensitive) == 0)
            return root;
    }
    return nullptr;
}

// An open key, closed at the end of its scope; null if it cannot be opened.
class OpenKey
{
public:
    enum class Missing
    {
        Leave,
        Create
    };

    OpenKey(const QString &path, REGSAM rights, Missing missing = Missing::Leave)
    {
        const qsizetype separator = path.indexOf(u'\\');
        const HKEY root = rootOf(QStringView(path).left(separator));
        if (!root)
            return;
        const QString subKey = separator < 0 ? QString() : path.mid(separator + 1);
        rights |= KEY_WOW64_64KEY;
        HKEY opened = nullptr;
        const LSTATUS status =
            missing == Missing::Create
                ? RegCreateKeyExW(root, wide(subKey), 0, nullptr, 0, rights, nullptr, &opened, nullptr)
                : RegOpenKeyExW(root, wide(subKey), 0, rights, &opened);
        if (status == ERROR_SUCCESS)
            m_key = opened;
        m_isMissing = status == ERROR_FILE_NOT_FOUND;
    }
    OpenKey(const OpenKey &) = delete;
    OpenKey &operator=(const OpenKey &) = delete;
    ~OpenKey()
    {
        if (m_key)
            RegCloseKey(m_key);
    }

    explicit operator bool() const { return m_key != nullptr; }
    HKEY handle() const { return m_key; }

    // True if the key does not exist; false if access to it is denied.
    bool isMissing() const { return m_isMissing; }

private:
    HKEY m_key = nullptr;
    bool m_isMissing = false;
};

// The names returned by one of the two listing calls for the indices from 0.
template<typename ListCall>
QStringList listNames(const OpenKey &key, ListCall listCall)
{
    QStringList names;
    if (!key)
        return names;
    std::vector<wchar_t> buffer(16384); // the longest name in a registry and a terminating zero
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(buffer.size());
        if (listCall(key.handle(), index, buffer.data(), &length) != ERROR_SUCCESS)
            return names;
        names.append(QString::fromWCharArray(buffer.data(), static_cast<qsizetype>(length)));
    }
}

} // namespace

RegistryKey::RegistryKey(QString path)
    : m_path(std::move(path))
{
}

bool RegistryKey::hasEntries() const
{
    const OpenKey key(m_path, KEY_QUERY_VALUE);
    if (!key)
        return false;
    DWORD subKeys = 0;
    DWORD values = 0;
    const LSTATUS status = RegQueryInfoKeyW(key.handle(), nullptr, nullptr, nullptr, &subKeys, nullptr,
                                            nullptr, &values, nullptr, nullptr, nullptr, nullptr);
    return status == ERROR_SUCCESS && (subKeys > 0 || values > 0);
}

QStringList RegistryKey::valueNames() const
{
    return listNames(OpenKey(m_path, KEY_QUERY_VALUE),
                     [](HKEY key, DWORD index, wchar_t *name, DWORD *length) {
                         return RegEnumValueW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
                     });
}

QStringList RegistryKey::subKeyNames() const
{
    return listNames(OpenKey(m_path, KEY_ENUMERATE_SUB_KEYS),
                     [](HKEY key, DWORD index, wchar_t *name, DWORD *length) {
                         return RegEnumKeyExW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
                     });
}

std::optional<QString> RegistryKey::text(const QString &valueName) const
{
    const OpenKey key(m_path, KEY_QUERY_VALUE);
    if (!key)
        return std::nullopt;
    constexpr DWORD kinds = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    std::vector<wchar_t> buffer(256);
    for (;;) {
        auto size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
        const LSTATUS status =
            RegGetValueW(key.handle(), nullptr, wide(valueName), kinds, nullptr, buffer.data(), &size);
        if (status == ERROR_SUCCESS)
            return QString::fromWCharArray(buffer.data()); // RegGetValueW adds a terminating zero
        if (status != ERROR_MORE_DATA)
            return std::nullopt;
        // Another program may have written a longer string by the next call: reserve more than was asked for.
        buffer.resize(size / sizeof(wchar_t) + 256);
    }
}

std::optional<QString> RegistryKey::textOrNumber(const QString &valueName) const
{
    if (const std::optional<QString> found = text(valueName))
        return found;
    const OpenKey key(m_path, KEY_QUERY_VALUE);
    if (!key)
        return std::nullopt;
    qint32 number = 0;
    DWORD size = sizeof(number);
    if (RegGetValueW(key.handle(), nullptr, wide(valueName), RRF_RT_REG_DWORD, nullptr, &number, &size) ==
        ERROR_SUCCESS)
        return QString::number(number);
    qint64 longNumber = 0;
    size = sizeof(longNumber);
    if (RegGetValueW(key.handle(), nullptr, wide(valueName), RRF_RT_REG_QWORD, nullptr, &longNumber, &size) ==
        ERROR_SUCCESS)
        return QString::number(longNumber);
    return std::nullopt;
}

bool RegistryKey::setText(const QString &valueName, const QString &text)
{
    const OpenKey key(m_path, KEY_SET_VALUE, OpenKey::Missing::Create);
    if (!key)
        return false;
    const auto size = static_cast<DWORD>((static_cast<std::size_t>(text.size()) + 1) * sizeof(wchar_t));
    return RegSetValueExW(key.handle(), wide(valueName), 0, REG_SZ,
                          reinterpret_cast<const BYTE *>(wide(text)), size) == ERROR_SUCCESS;
}

std::optional<quint32> RegistryKey::number(const QString &valueName) const
{
    const OpenKey key(m_path, KEY_QUERY_VALUE);
    DWORD number = 0;
    DWORD size = sizeof number;
    if (!key || RegGetValueW(key.handle(), nullptr, wide(valueName), RRF_RT_REG_DWORD, nullptr, &number,
                             &size) != ERROR_SUCCESS)
        return std::nullopt;
    return static_cast<quint32>(number);
}

bool RegistryKey::setNumber(const QString &valueName, quint32 number)
{
    const OpenKey key(m_path, KEY_SET_VALUE, OpenKey::Missing::Create);
    if (!key)
        return false;
    const DWORD written = number;
    return RegSetValueExW(key.handle(), wide(valueName), 0, REG_DWORD,
                          reinterpret_cast<const BYTE *>(&written), sizeof written) == ERROR_SUCCESS;
}

bool RegistryKey::removeValue(const QString &valueName)
{
    const OpenKey key(m_path, KEY_SET_VALUE);
    if (!key)
        return false;
    const LSTATUS status = RegDeleteValueW(key.handle(), wide(valueName));
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

bool RegistryKey::removeWhole()
{
    const qsizetype separator = m_path.lastIndexOf(u'\\');
    if (separator < 0)
        return false;
    const OpenKey above(m_path.left(separator), KEY_READ | KEY_SET_VALUE | DELETE);
    if (!above)
        return above.isMissing();
    const LSTATUS status = RegDeleteTreeW(above.handle(), wide(m_path.mid(separator + 1)));
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

} // namespace Nvx::Util
