#include "platform.h"

#include <QByteArray>

#include <windows.h>

namespace Nvx::Util::Platform {

namespace {

// The consecutive records of one relation; empty if the system does not return them.
QByteArray topologyRecords(LOGICAL_PROCESSOR_RELATIONSHIP relation)
{
    DWORD size = 0;
    GetLogicalProcessorInformationEx(relation, nullptr, &size);
    QByteArray records(static_cast<qsizetype>(size), '\0');
    auto *first = reinterpret_cast<SYSTEM_LOGICAL_PROCESSOR_INFORMATION_EX *>(records.data());
    if (size == 0 || !GetLogicalProcessorInformationEx(relation, first, &size))
        return QByteArray();
    return records.left(static_cast<qsizetype>(size));
}

struct RelationCount
{
    qint32 records = 0;
    bool anySmt = false;
};

RelationCount count(LOGICAL_PROCESSOR_RELATIONSHIP relation)
{
    RelationCount counted;
    const QByteArray records = topologyRecords(relation);
    qsizetype offset = 0;
    while (offset < records.size()) {
        const auto *record =
            reinterpret_cast<const SYSTEM_LOGICAL_PROCESSOR_INFORMATION_EX *>(records.constData() + offset);
        if (record->Size == 0)
            break;
        ++counted.records;
        counted.anySmt = counted.anySmt || (record->Processor.Flags & LTP_PC_SMT) != 0;
        offset += static_cast<qsizetype>(record->Size);
    }
    return counted;
}

} // namespace

std::optional<ProcessorCounts> probeProcessors()
{
    const RelationCount packages = count(RelationProcessorPackage);
    const RelationCount cores = count(RelationProcessorCore);
    if (cores.records == 0)
        return std::nullopt;
    return countProcessors(packages.records, cores.records, cores.anySmt);
}

} // namespace Nvx::Util::Platform
