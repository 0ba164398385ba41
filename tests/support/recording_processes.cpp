#include "support/recording_processes.h"

#include <algorithm>

using Nvx::Util::OpenedProcess;
using Nvx::Util::ProcessId;

namespace {

class RecordedProcess final : public OpenedProcess
{
public:
    RecordedProcess(const RecordingProcesses::Process &process, QStringList &ended)
        : m_process(process)
        , m_ended(ended)
    {
    }

    QString baseName() const override { return m_process.baseName; }
    QString path() const override { return m_process.path; }
    bool terminate() override
    {
        if (m_process.kind != RecordingProcesses::Kind::Ordinary)
            return false;
        m_ended.append(m_process.path);
        return true;
    }

private:
    const RecordingProcesses::Process m_process;
    QStringList &m_ended;
};

} // namespace

QList<ProcessId> RecordingProcesses::ids(int atMost)
{
    limits.append(atMost);
    QList<ProcessId> ids;
    const qsizetype count = std::min<qsizetype>(atMost, list.size());
    for (qsizetype i = 0; i < count; ++i)
        ids.append(static_cast<ProcessId>(i));
    return ids;
}

std::unique_ptr<OpenedProcess> RecordingProcesses::open(ProcessId id)
{
    const Process &process = list.at(static_cast<qsizetype>(id));
    if (process.kind == Kind::Closed)
        return nullptr;
    return std::make_unique<RecordedProcess>(process, ended);
}
