#include "cad/process_guard.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "run/reporter.h"
#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

using Nvx::Util::Answer;
using Nvx::Util::BoxKind;

namespace {

struct ProcessGuard
{
    Q_DECLARE_TR_FUNCTIONS(ProcessGuard)
};

// The programs of a guard; the names of each stand at the same place.
struct GuardedPrograms
{
    QStringList exeNames;
    QStringList displayNames;
    QString pathFilter;

    QStringList find(const StepContext &context, OnMatch onMatch) const
    {
        return findProcesses(context, exeNames, displayNames, onMatch, pathFilter);
    }
};

GuardedPrograms cadPrograms()
{
    return {{QStringLiteral("XTOP.EXE"), QStringLiteral("SLDWORKS.EXE"), QStringLiteral("SPACECLAIM.EXE"),
             QStringLiteral("BREVANT.EXE"), QStringLiteral("SOLIDDESIGNER.EXE"), QStringLiteral("EDGE.EXE")},
            {QStringLiteral("Wildfire"), QStringLiteral("SolidWorks"), QStringLiteral("Spaceclaim"),
             QStringLiteral("Brevant"), QStringLiteral("SolidDesigner"), QStringLiteral("SolidEdge")},
            QString()};
}

// The release is part of the install dir's path, which tells its programs from those of other releases.
GuardedPrograms productPrograms()
{
    return {{Nvx::Product::program.toUpper(), Nvx::Product::solverProgram.toUpper(),
             Nvx::Product::serverProgram.toUpper(), Nvx::Product::monitorProgram.toUpper()},
            {QStringLiteral("Velmora NVX"), QStringLiteral("NVXSolver"), QStringLiteral("NVXServer"),
             Nvx::Product::jobMonitor},
            Nvx::Product::release};
}

QString closingSentences(const QStringList &names)
{
    if (names.size() == 1)
        return ProcessGuard::tr("Click Yes to continue after the process is stopped.\n"
                                "Click No to continue without stopping the process.");
    return ProcessGuard::tr("Click Yes to continue after the processes are stopped.\n"
                            "Click No to continue without stopping the processes.");
}

QString question(const QString &sentence, const QStringList &names)
{
    return sentence.arg(names.join(QLatin1Char(','))) + QStringLiteral("\n\n") + closingSentences(names);
}

// Yes does not wait until the programs are stopped: it stops them. Nobody looks again afterwards.
bool act(const StepContext &context, const GuardedPrograms &programs, Answer answer)
{
    if (answer == Answer::Yes)
        programs.find(context, OnMatch::Terminate);
    return answer == Answer::Dismissed;
}

QString onOrOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

} // namespace

QString runningCadQuestion(const QStringList &names)
{
    return question(names.size() == 1
                        ? ProcessGuard::tr("%1 is running, and should be stopped before the NVX launcher "
                                           "add-in can be configured.")
                        : ProcessGuard::tr("%1 are running, and should be stopped before the NVX launcher "
                                           "add-in can be configured."),
                    names);
}

QString runningProductQuestion(const QStringList &names)
{
    return question(names.size() == 1
                        ? ProcessGuard::tr("%1 is running, and should be stopped before continuing.")
                        : ProcessGuard::tr("%1 are running, and should be stopped before continuing."),
                    names);
}

bool guardAgainstRunningCad(const StepContext &context)
{
    const GuardedPrograms programs = cadPrograms();
    const QStringList running = programs.find(context, OnMatch::List);
    if (running.isEmpty())
        return false;
    const Answer answer = context.machine.ask(
        BoxKind::Question, ProcessGuard::tr("CAD Launcher Installation"), runningCadQuestion(running));
    return act(context, programs, answer);
}

bool guardAgainstRunningProduct(const StepContext &context, OnMatch onMatch)
{
    context.reporter.log(LogLevel::step,
                         QStringLiteral("CheckForRunningOstrade: silent=%1 terminate=%2")
                             .arg(onOrOff(context.state.silent), onOrOff(onMatch == OnMatch::Terminate)));
    const GuardedPrograms programs = productPrograms();
    const QStringList running = programs.find(context, onMatch);
    if (running.isEmpty())
        return false;
    if (context.state.silent)
        return act(context, programs, Answer::Yes);
    const Answer answer = context.machine.ask(
        BoxKind::Question, ProcessGuard::tr("Velmora %1 Installation").arg(Nvx::Product::name),
        runningProductQuestion(running));
    return act(context, programs, answer);
}
