#pragma once

#include "nvx_util/process_table.h"

#include <QList>
#include <QStringList>

/// The processes that a test sets; records what is done to them.
class RecordingProcesses : public Nvx::Util::ProcessTable
{
public:
    /// What can be done with a process.
    enum class Kind
    {
        Ordinary,
        Closed,       ///< it cannot be opened: it belongs to another user, or it has ended
        EndsMeanwhile ///< it can be opened, but ends before it is terminated
    };

    struct Process
    {
        QString baseName;
        QString path;
        Kind kind = Kind::Ordinary;
    };

    QList<Process> list;

    /// The paths of the terminated processes, in order.
    QStringList ended;

    /// The maximum number of ids of each request.
    QList<int> limits;

    /// Adds a process by the path of its executable.
    void add(const QString &path, Kind kind = Kind::Ordinary)
    {
        list.append({path.section(u'\\', -1), path, kind});
    }

    QList<Nvx::Util::ProcessId> ids(int atMost) override;
    std::unique_ptr<Nvx::Util::OpenedProcess> open(Nvx::Util::ProcessId id) override;
};
