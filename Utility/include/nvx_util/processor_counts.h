#pragma once

#include <QtGlobal>

namespace Nvx::Util {

/// The numbers of processors and cores of a machine.
struct ProcessorCounts
{
    qint32 processors = 1;        ///< processor packages (sockets)
    qint32 coresPerProcessor = 1; ///< physical cores of one package
    bool hyperThreading = false;  ///< a core runs more than one thread
};

/// The counts of a machine with this number of packages, and of physical cores in all packages together. Each
/// count is at least 1. The cores are divided evenly among the packages, rounded down.
ProcessorCounts countProcessors(qint32 packages, qint32 cores, bool hyperThreading);

} // namespace Nvx::Util
