#include "nvx_util/cpu_info.h"

#include "nvx_util/log.h"
#include "platform.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

ProcessorCounts countProcessors(qint32 packages, qint32 cores, bool hyperThreading)
{
    const qint32 processors = std::max(packages, 1);
    return {
        .processors = processors,
        .coresPerProcessor = std::max(cores / processors, 1),
        .hyperThreading = hyperThreading,
    };
}

CpuInfo::CpuInfo(Log &log, const QString & /*productFolder*/)
{
    if (const auto probed = Platform::probeProcessors())
        m_counts = *probed;
    else
        log.append(u"The processors could not be counted; one processor with one core is assumed"_s);
}

CpuInfo::CpuInfo(const ProcessorCounts &counts)
    : m_counts(counts)
{
}

} // namespace Nvx::Util
