#include "nvx_util/cpu_info.h"

#include "nvx_util/log.h"
#include "platform.h"

#include <algorithm>

namespace Nvx::Util {

ProcessorCounts countProcessors(qint32 packages, qint32 cores, bool hyperThreading)
{
    ProcessorCounts counts;
    counts.processors = std::max(packages, 1);
    counts.coresPerProcessor = std::max(cores / counts.processors, 1);
    counts.hyperThreading = hyperThreading;
    return counts;
}

CpuInfo::CpuInfo(Log &log, const QString & /*productFolder*/)
{
    if (const auto probed = Platform::probeProcessors())
        m_counts = *probed;
    else
        log.append(
            QStringLiteral("The processors could not be probed, one processor of one core is assumed"));
}

CpuInfo::CpuInfo(const ProcessorCounts &counts)
    : m_counts(counts)
{
}

} // namespace Nvx::Util
