#pragma once

#include <QList>
#include <QString>

#include <memory>

namespace Nvx::Util {

using ProcessId = quint32;

/// A process that is held open: it stays the same one even when it ends meanwhile.
class OpenedProcess
{
public:
    OpenedProcess() = default;
    OpenedProcess(const OpenedProcess &) = delete;
    OpenedProcess &operator=(const OpenedProcess &) = delete;
    virtual ~OpenedProcess() = default;

    /// The file name of its executable, "<unknown>" when the machine does not tell. At most 259 characters of
    /// it, as of the path.
    virtual QString baseName() const = 0;

    /// The full path of its executable.
    virtual QString path() const = 0;

    /// Ends it at once, with the exit code -1. False when that was refused or it has ended by itself.
    virtual bool terminate() = 0;
};

/// The processes that run on the machine.
class ProcessTable
{
public:
    ProcessTable() = default;
    ProcessTable(const ProcessTable &) = delete;
    ProcessTable &operator=(const ProcessTable &) = delete;
    virtual ~ProcessTable() = default;

    /// The first processes in the machine's order, as many as fit; none when the machine does not tell.
    virtual QList<ProcessId> ids(int atMost) = 0;

    /// Opens a process to look at it and to end it; null when that is not allowed, when it has ended, or when
    /// it runs no executable that one could read about.
    virtual std::unique_ptr<OpenedProcess> open(ProcessId id) = 0;
};

} // namespace Nvx::Util
