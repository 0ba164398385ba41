#include "nvx_util/registry_key.h"

#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "unix/machine_folder.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <sys/stat.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

// The file is one JSON object. It maps the path of each key to an object of its values, strings and numbers.

namespace {

QString registryFile()
{
    const QString machine = Platform::machineFolder();
    return machine.isEmpty() ? QString() : joinPath(machine, u"registry.json"_s);
}

// Identifies a version of a file. Since the file is always replaced whole, a new version is a new file.
struct FileVersion
{
    dev_t device = 0;
    ino_t number = 0;
    off_t size = -1;
    time_t seconds = 0;
    long nanoseconds = 0;

    bool operator==(const FileVersion &) const = default;
};

FileVersion versionOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {
        .device = status.st_dev,
        .number = status.st_ino,
        .size = status.st_size,
        .seconds = status.st_mtim.tv_sec,
        .nanoseconds = status.st_mtim.tv_nsec,
    };
}

// A run reads a hundred keys, so the file is only read again when it has changed.
QJsonObject readRegistry()
{
    thread_local FileVersion lastVersion;
    thread_local QJsonObject lastRegistry;
    const QString path = registryFile();
    const FileVersion version = versionOf(path);
    if (version.size >= 0 && version == lastVersion)
        return lastRegistry;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QJsonObject();
    lastRegistry = QJsonDocument::fromJson(file.readAll()).object();
    lastVersion = version;
    return lastRegistry;
}

bool writeRegistry(const QJsonObject &registry)
{
    System::makePath(Platform::machineFolder());
    return replaceWholeFile(registryFile(), QJsonDocument(registry).toJson());
}

// The spelling of name in the object, ignoring case; name itself if the object does not have it.
QString nameIn(const QJsonObject &object, const QString &name)
{
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry.key().compare(name, Qt::CaseInsensitive) == 0)
            return entry.key();
    }
    return name;
}

QJsonObject valuesOf(const QJsonObject &registry, const QString &path)
{
    return registry.value(nameIn(registry, path)).toObject();
}

bool setValue(const QString &key, const QString &valueName, const QJsonValue &value)
{
    if (registryFile().isEmpty())
        return false;
    QJsonObject registry = readRegistry();
    const QString path = nameIn(registry, key);
    QJsonObject values = registry.value(path).toObject();
    values.insert(nameIn(values, valueName), value);
    registry.insert(path, values);
    return writeRegistry(registry);
}

} // namespace

RegistryKey::RegistryKey(QString path)
    : m_path(std::move(path))
{
}

bool RegistryKey::hasEntries() const
{
    return !valueNames().isEmpty() || !subKeyNames().isEmpty();
}

QStringList RegistryKey::valueNames() const
{
    return valuesOf(readRegistry(), m_path).keys();
}

QStringList RegistryKey::subKeyNames() const
{
    const QString above = m_path + u'\\';
    QStringList names;
    const QStringList paths = readRegistry().keys();
    for (const QString &path : paths) {
        if (!path.startsWith(above, Qt::CaseInsensitive))
            continue;
        const QString name = path.mid(above.size()).section(u'\\', 0, 0);
        // The paths are sorted, so those below one sub-key are consecutive.
        if (names.isEmpty() || names.last().compare(name, Qt::CaseInsensitive) != 0)
            names.append(name);
    }
    return names;
}

std::optional<QString> RegistryKey::text(const QString &valueName) const
{
    const QJsonObject values = valuesOf(readRegistry(), m_path);
    const QJsonValue value = values.value(nameIn(values, valueName));
    return value.isString() ? std::optional<QString>(value.toString()) : std::nullopt;
}

std::optional<QString> RegistryKey::textOrNumber(const QString &valueName) const
{
    const QJsonObject values = valuesOf(readRegistry(), m_path);
    const QJsonValue value = values.value(nameIn(values, valueName));
    if (!value.isDouble())
        return text(valueName);
    const qint64 number = value.toInteger();
    const bool hasThirtyTwoBits = number == static_cast<quint32>(number);
    return QString::number(hasThirtyTwoBits ? static_cast<qint32>(number) : number);
}

bool RegistryKey::setText(const QString &valueName, const QString &text)
{
    return setValue(m_path, valueName, text);
}

std::optional<quint32> RegistryKey::number(const QString &valueName) const
{
    const QJsonObject values = valuesOf(readRegistry(), m_path);
    const qint64 number = values.value(nameIn(values, valueName)).toInteger(-1);
    if (number < 0 || number > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return static_cast<quint32>(number);
}

bool RegistryKey::setNumber(const QString &valueName, quint32 number)
{
    return setValue(m_path, valueName, static_cast<qint64>(number));
}

bool RegistryKey::removeValue(const QString &valueName)
{
    QJsonObject registry = readRegistry();
    const QString path = nameIn(registry, m_path);
    if (!registry.contains(path))
        return false;
    QJsonObject values = registry.value(path).toObject();
    values.remove(nameIn(values, valueName));
    registry.insert(path, values);
    return writeRegistry(registry);
}

bool RegistryKey::removeWhole()
{
    if (!m_path.contains(u'\\'))
        return false;
    QJsonObject registry = readRegistry();
    const QStringList paths = registry.keys();
    for (const QString &path : paths) {
        if ((path + u'\\').startsWith(m_path + u'\\', Qt::CaseInsensitive))
            registry.remove(path);
    }
    return registry.size() == paths.size() || writeRegistry(registry);
}

} // namespace Nvx::Util
