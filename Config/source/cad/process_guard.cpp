#include "cad/process_guard.h"

#include "cad/cad_systems.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "run/reporter.h"
#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

using Nvx::Util::BoxAnswer;
using Nvx::Util::BoxKind;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

struct ProcessGuard
{
    Q_DECLARE_TR_FUNCTIONS(ProcessGuard)
};

// The programs of a guard, in two parallel lists as findProcesses takes them.
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
    GuardedPrograms programs;
    const QList<GuardedProgram> guarded = guardedCadPrograms();
    for (const GuardedProgram &program : guarded) {
        programs.exeNames.append(program.fileName);
        programs.displayNames.append(program.displayName);
    }
    return programs;
}

// The path of the install dir contains the release, which excludes the programs of other releases.
GuardedPrograms productPrograms()
{
    return {.exeNames = {Product::program.toUpper(), Product::solverProgram.toUpper(),
                         Product::serverProgram.toUpper(), Product::monitorProgram.toUpper()},
            .displayNames = {u"Velmora NVX"_s, u"NVXSolver"_s, u"NVXServer"_s, Product::jobMonitor},
            .pathFilter = Product::release};
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
    return sentence.arg(names.join(u',')) + u"\n\n"_s + closingSentences(names);
}

// Yes does not wait for the user to stop the programs: it ends them. There is no second check.
bool act(const StepContext &context, const GuardedPrograms &programs, BoxAnswer answer)
{
    if (answer == BoxAnswer::Yes)
        programs.find(context, OnMatch::Terminate);
    return answer == BoxAnswer::Dismissed;
}

QString onOrOff(bool on)
{
    return on ? u"on"_s : u"off"_s;
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
    const BoxAnswer answer = context.machine.ask(
        BoxKind::Question, ProcessGuard::tr("CAD Launcher Installation"), runningCadQuestion(running));
    return act(context, programs, answer);
}

bool guardAgainstRunningProduct(const StepContext &context, OnMatch onMatch)
{
    context.reporter.log(LogLevel::step,
                         u"CheckForRunningOstrade: silent=%1 terminate=%2"_s.arg(
                             onOrOff(context.state.silent), onOrOff(onMatch == OnMatch::Terminate)));
    const GuardedPrograms programs = productPrograms();
    const QStringList running = programs.find(context, onMatch);
    if (running.isEmpty())
        return false;
    if (context.state.silent)
        return act(context, programs, BoxAnswer::Yes);
    const BoxAnswer answer =
        context.machine.ask(BoxKind::Question, ProcessGuard::tr("Velmora %1 Installation").arg(Product::name),
                            runningProductQuestion(running));
    return act(context, programs, answer);
}

} // namespace Nvx::Cad
