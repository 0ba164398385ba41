#include "platform.h"
#include "unix/topology.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <utility>

namespace Nvx::Util::Platform {

namespace {

std::optional<int> readNumber(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    bool isNumber = false;
    const int number = file.readAll().trimmed().toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

} // namespace

std::optional<ProcessorCounts> readTopology(const QString &folder)
{
    QSet<int> packages;
    QSet<std::pair<int, int>> cores;
    qsizetype threads = 0;
    const QDir processors(folder);
    const auto names = processors.entryList({QStringLiteral("cpu[0-9]*")}, QDir::Dirs);
    for (const QString &name : names) {
        const QString topology = processors.filePath(name) + QStringLiteral("/topology/");
        const auto package = readNumber(topology + QStringLiteral("physical_package_id"));
        const auto core = readNumber(topology + QStringLiteral("core_id"));
        if (!package || !core)
            continue;
        packages.insert(*package);
        cores.insert({*package, *core});
        ++threads;
    }
    if (threads == 0)
        return std::nullopt;
    return countProcessors(static_cast<qint32>(packages.size()), static_cast<qint32>(cores.size()),
                           threads > cores.size());
}

std::optional<ProcessorCounts> probeProcessors()
{
    return readTopology(QStringLiteral("/sys/devices/system/cpu"));
}

} // namespace Nvx::Util::Platform
