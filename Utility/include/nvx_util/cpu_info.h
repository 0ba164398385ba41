#pragma once

#include "nvx_util/processor_counts.h"

#include <QString>

namespace Nvx::Util {

class Log;

/// The machine's processors, from the operating system's description of their topology.
class CpuInfo
{
public:
    /// Probes the machine. If that fails, logs it and counts one processor with one core. The product folder
    /// is not used: the operating system knows the processors.
    CpuInfo(Log &log, const QString &productFolder);

    /// Uses known counts.
    explicit CpuInfo(const ProcessorCounts &counts);

    qint32 processorCount() const { return m_counts.processors; }
    qint32 coresPerProcessor() const { return m_counts.coresPerProcessor; }
    bool isHyperThreadingOn() const { return m_counts.hyperThreading; }

private:
    ProcessorCounts m_counts;
};

} // namespace Nvx::Util
