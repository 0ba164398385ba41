#include "platform.h"
#include "unix/topology.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <utility>

using namespace Qt::Literals::StringLiterals;

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
    const auto names = processors.entryList({u"cpu[0-9]*"_s}, QDir::Dirs);
    for (const QString &name : names) {
        const QString topology = processors.filePath(name) + u"/topology/"_s;
        const auto package = readNumber(topology + u"physical_package_id"_s);
        const auto core = readNumber(topology + u"core_id"_s);
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
    return readTopology(u"/sys/devices/system/cpu"_s);
}

} // namespace Nvx::Util::Platform
