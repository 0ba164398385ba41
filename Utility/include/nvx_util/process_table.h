#pragma once

#include <QList>
#include <QString>

#include <memory>

namespace Nvx::Util {

using ProcessId = quint32;

/// A process with an open handle. Its id is not reused, even after the process has ended.
class OpenedProcess
{
public:
    OpenedProcess() = default;
    OpenedProcess(const OpenedProcess &) = delete;
    OpenedProcess &operator=(const OpenedProcess &) = delete;
    virtual ~OpenedProcess() = default;

    /// The file name of its executable, cut to 259 characters; "<unknown>" if the system does not return it.
    virtual QString baseName() const = 0;

    /// The full path of its executable, likewise.
    virtual QString path() const = 0;

    /// Terminates it with the exit code -1. False if that is denied or it has already ended.
    virtual bool terminate() = 0;
};

/// The running processes of the machine.
class ProcessTable
{
public:
    ProcessTable() = default;
    ProcessTable(const ProcessTable &) = delete;
    ProcessTable &operator=(const ProcessTable &) = delete;
    virtual ~ProcessTable() = default;

    /// The ids of the processes in the system's order, at most atMost of them; empty if the system does not
    /// return them.
    virtual QList<ProcessId> ids(int atMost) = 0;

    /// Opens a process for queries and termination. Null if that is not allowed, if it has ended, or if its
    /// executable cannot be determined.
    virtual std::unique_ptr<OpenedProcess> open(ProcessId id) = 0;
};

} // namespace Nvx::Util
