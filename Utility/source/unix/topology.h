#pragma once

#include "nvx_util/processor_counts.h"

#include <QString>

#include <optional>

namespace Nvx::Util::Platform {

/// Counts the processors described below a folder like /sys/devices/system/cpu: in each sub-folder "cpu" +
/// number the files topology/physical_package_id and topology/core_id. Processors without them (switched off)
/// do not count; nothing is answered when none has them.
std::optional<ProcessorCounts> readTopology(const QString &folder);

} // namespace Nvx::Util::Platform
