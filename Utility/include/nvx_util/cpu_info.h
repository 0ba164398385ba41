#pragma once

#include "nvx_util/processor_counts.h"

#include <QString>

namespace Nvx::Util {

class Log;

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
