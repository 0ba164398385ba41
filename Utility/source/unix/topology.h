#pragma once

#include "nvx_util/processor_counts.h"

#include <QString>

#include <optional>

namespace Nvx::Util::Platform {

/// Counts the processors described in a folder like /sys/devices/system/cpu, which contains the files
/// cpuN/topology/physical_package_id and cpuN/topology/core_id. Processors without these files are switched
/// off and do not count. std::nullopt if no processor has them.
std::optional<ProcessorCounts> readTopology(const QString &folder);

} // namespace Nvx::Util::Platform
