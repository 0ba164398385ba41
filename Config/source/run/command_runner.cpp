#include "run/command_runner.h"

#include "nvx_util/code_page.h"
#include "nvx_util/machine.h"
#include "run/output_lines.h"
#include "run/reporter.h"
#include "run/run_state.h"

#include <QDirIterator>
#include <QFile>

#include <optional>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;

struct CommandRunner::Call
{
    ProgramCall::Place place;
    QString program;
    QStringList arguments;
    QString workFolder;
    int timeoutMs;
};

namespace {

int exitCodeOf(const ProgramResult &result)
{
    switch (result.outcome) {
    case ProgramResult::Outcome::NotStarted:
        return CommandRunner::notStarted;
    case ProgramResult::Outcome::TimedOut:
        return CommandRunner::timedOut;
    case ProgramResult::Outcome::Exited:
    case ProgramResult::Outcome::Crashed:
        break;
    }
    return result.exitCode;
}

bool createBatchFile(const QString &path, const QByteArray &commandLine)
{
    QFile::remove(path);
    QFile file(path);
    // Only a file that is new is ours to run, and only whole: what a full disk cuts short names another
    // folder.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    if (file.write(commandLine) == commandLine.size())
        return true;
    file.remove();
    return false;
}

} // namespace

CommandRunner::CommandRunner(const StepContext &context)
    : m_context(context)
{
}

int CommandRunner::runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                              int timeoutMs)
{
    return run({ProgramCall::Place::Path, program, arguments, workFolder, timeoutMs});
}

int CommandRunner::runSystemCommand(const QString &fileName, const QStringList &arguments,
                                    const QString &workFolder, int timeoutMs)
{
    return run({ProgramCall::Place::SystemFolder, fileName, arguments, workFolder, timeoutMs});
}

int CommandRunner::run(const Call &call)
{
    Reporter &reporter = m_context.reporter;
    QString commandLine = QStringLiteral("Command:") + call.program;
    for (const QString &argument : call.arguments)
        commandLine += QLatin1Char(' ') + argument;
    reporter.log(LogLevel::step, commandLine);

    ProgramCall program;
    program.place = call.place;
    program.program = call.program;
    program.arguments = call.arguments;
    program.workFolder = call.workFolder.isEmpty() ? m_context.state.installDir : call.workFolder;
    program.timeoutMs = call.timeoutMs;
    program.outputLimit = maxOutputLines * maxOutputLineBytes;
    reporter.log(LogLevel::step, QStringLiteral("WorkDir:") + program.workFolder);

    const ProgramResult result = m_context.machine.run(program);
    const int exitCode = exitCodeOf(result);
    const int level = LogLevel::ofResult(exitCode);
    reporter.log(level, QStringLiteral("Output:"));
    const QString indent = QStringLiteral("  ");
    const QStringList lines = outputLines(result.output);
    for (const QString &line : lines)
        reporter.log(level, indent + line);
    if (result.outcome == ProgramResult::Outcome::NotStarted)
        reporter.log(level, indent + tr("The program could not be started."));
    else if (result.outcome == ProgramResult::Outcome::TimedOut)
        reporter.log(
            level,
            indent + tr("The program was still running after %1 ms and has been ended.").arg(call.timeoutMs));
    else if (result.outcome == ProgramResult::Outcome::Crashed)
        reporter.log(level, indent + tr("The program crashed."));
    return exitCode;
}

QString removalCommand(const QString &path)
{
    QString escaped = path;
    escaped.replace(QLatin1Char('%'), QLatin1String("%%"));
    return QStringLiteral("rmdir /s /q \"") + escaped + QLatin1Char('"');
}

bool CommandRunner::removeDirectory(const QString &path)
{
    Reporter &reporter = m_context.reporter;
    const std::optional<QByteArray> commandLine = Nvx::Util::toOem(removalCommand(path));
    if (!commandLine) {
        reporter.log(LogLevel::failure,
                     tr("The command interpreter's code page cannot write the name of this folder, "
                        "it is not removed: %1")
                         .arg(path));
        return true;
    }

    // The file lies beside the install dir rather than in it: its name is the folder's, continued.
    const QString batchFile = m_context.state.installDir + QStringLiteral("work.bat");
    if (!createBatchFile(batchFile, *commandLine)) {
        reporter.log(LogLevel::failure,
                     tr("Unable to create %1, this folder is not removed: %2").arg(batchFile, path));
        return true;
    }

    ProgramCall call;
    call.place = ProgramCall::Place::SystemFolder;
    call.quoting = ProgramCall::Quoting::CommandInterpreter;
    call.program = QStringLiteral("cmd.exe");
    call.arguments = QStringList{QStringLiteral("/C"), batchFile};
    call.workFolder = m_context.state.installDir;
    call.timeoutMs = usualTimeoutMs;
    reporter.log(LogLevel::step, QStringLiteral("Command:cmd.exe /C %1 ").arg(batchFile));
    const ProgramResult result = m_context.machine.run(call);
    QFile::remove(batchFile);
    reporter.log(LogLevel::ofResult(exitCodeOf(result)),
                 QStringLiteral(" output:") + Nvx::Util::fromOem(result.output));
    return true;
}

bool CommandRunner::removeMatchingFiles(const QString &folder, const QString &pattern)
{
    if (!QFileInfo(folder).isDir())
        return false;
    QStringList matching;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (entries.hasNext()) {
        entries.next();
        const QString path = folder + QLatin1Char('/') + entries.fileName();
        if (path.toUpper().contains(pattern))
            matching.append(path);
    }
    for (const QString &path : std::as_const(matching)) {
        m_context.reporter.log(LogLevel::step, QStringLiteral("Removing:") + path);
        QFile::remove(path);
    }
    return true;
}
