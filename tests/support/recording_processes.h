#pragma once

#include "nvx_util/process_table.h"

#include <QList>
#include <QStringList>

/// Processes that a test has set, and what was done to them.
class RecordingProcesses : public Nvx::Util::ProcessTable
{
public:
    /// How a process answers.
    enum class Kind
    {
        Ordinary,
        Closed,       ///< it cannot be opened: it is another user's, or it has just ended
        EndsMeanwhile ///< it can be opened, and has ended when it is to be ended
    };

    struct Process
    {
        QString baseName;
        QString path;
        Kind kind = Kind::Ordinary;
    };

    QList<Process> list;

    /// The paths of those that were ended, in order.
    QStringList ended;

    /// How many ids were asked for, each time.
    QList<int> limits;

    /// Adds a process by the path of its executable.
    void add(const QString &path, Kind kind = Kind::Ordinary)
    {
        list.append({path.section(QLatin1Char('\\'), -1), path, kind});
    }

    QList<Nvx::Util::ProcessId> ids(int atMost) override;
    std::unique_ptr<Nvx::Util::OpenedProcess> open(Nvx::Util::ProcessId id) override;
};
