#include "run/process_finder.h"

#include "nvx_util/machine.h"
#include "nvx_util/process_table.h"
#include "run/reporter.h"
#include "run/step_context.h"

#include <QCoreApplication>

using Nvx::Util::OpenedProcess;
using Nvx::Util::ProcessId;
using Nvx::Util::ProcessTable;

namespace Nvx::Run {

namespace {

struct ProcessFinder
{
    Q_DECLARE_TR_FUNCTIONS(ProcessFinder)
};

// Further processes are not examined.
constexpr int maxProcesses = 1024;

void end(OpenedProcess &process, const QString &displayName, Reporter &reporter)
{
    const QString sentence =
        process.terminate() ? ProcessFinder::tr("%1 terminated") : ProcessFinder::tr("%1 was not terminated");
    reporter.log(LogLevel::step, sentence.arg(displayName));
}

} // namespace

QStringList findProcesses(const StepContext &context, const QStringList &exeNames,
                          const QStringList &displayNames, OnMatch onMatch, const QString &pathFilter)
{
    QStringList found;
    ProcessTable &processes = context.machine.processes();
    const QList<ProcessId> ids = processes.ids(maxProcesses);
    for (const ProcessId id : ids) {
        const std::unique_ptr<OpenedProcess> process = processes.open(id);
        if (!process || !process->path().toUpper().contains(pathFilter))
            continue;
        const qsizetype position = exeNames.indexOf(process->baseName().toUpper());
        if (position < 0)
            continue;
        const QString displayName = displayNames.value(position);
        if (onMatch == OnMatch::Terminate)
            end(*process, displayName, context.reporter);
        else
            found.append(displayName);
    }
    return found;
}

} // namespace Nvx::Run
