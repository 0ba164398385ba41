#pragma once

#include <QString>

#include <optional>

namespace Nvx::Util {

class Log;

/// What a probe of the machine counts.
struct ProcessorCounts
{
    qint32 processors = 1;        ///< processor packages (sockets)
    qint32 coresPerProcessor = 1; ///< physical cores of one package
    bool hyperThreading = false;  ///< a core runs more than one thread
};

/// The counts of a machine with that many packages and physical cores in all. Never less than 1 each,
/// whatever the probe counted; packages of unequal size count as equal, rounded down.
ProcessorCounts countProcessors(qint32 packages, qint32 cores, bool hyperThreading);

/// The machine's processors, as the operating system describes their topology.
class CpuInfo
{
public:
    /// Probes the machine. A probe that fails says so in the log and counts one processor of one core. The
    /// folder is that of the product; the operating system is asked, so nothing in it is needed.
    CpuInfo(Log &log, const QString &productFolder);

    /// For counts that are known.
    explicit CpuInfo(const ProcessorCounts &counts);

    qint32 processorCount() const { return m_counts.processors; }
    qint32 coresPerProcessor() const { return m_counts.coresPerProcessor; }
    bool isHyperThreadingOn() const { return m_counts.hyperThreading; }

private:
    ProcessorCounts m_counts;
};

} // namespace Nvx::Util
