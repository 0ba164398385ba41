#include "run/command_runner.h"

#include "nvx_util/code_page.h"
#include "nvx_util/machine.h"
#include "nvx_util/trusted_files.h"
#include "run/output_lines.h"
#include "run/product_files.h"
#include "run/reporter.h"
#include "run/run_state.h"

#include <QDirIterator>
#include <QFile>

#include <optional>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Run {

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

} // namespace

CommandRunner::CommandRunner(const StepContext &context)
    : m_context(context)
{
}

int CommandRunner::runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                              int timeoutMs)
{
    return run({.program = program,
                .arguments = arguments,
                .workFolder = workFolder,
                .timeoutMs = timeoutMs,
                .place = ProgramCall::Place::Path});
}

int CommandRunner::runSystemCommand(const QString &fileName, const QStringList &arguments,
                                    const QString &workFolder, int timeoutMs)
{
    return run({.program = fileName,
                .arguments = arguments,
                .workFolder = workFolder,
                .timeoutMs = timeoutMs,
                .place = ProgramCall::Place::SystemFolder});
}

int CommandRunner::run(ProgramCall program)
{
    Reporter &reporter = m_context.reporter;
    QString commandLine = u"Command:"_s + program.program;
    for (const QString &argument : std::as_const(program.arguments))
        commandLine += u' ' + argument;
    reporter.log(LogLevel::step, commandLine);

    if (program.workFolder.isEmpty())
        program.workFolder = m_context.state.installDir;
    program.outputLimit = maxOutputLines * maxOutputLineBytes;
    reporter.log(LogLevel::step, u"WorkDir:"_s + program.workFolder);

    const ProgramResult result = m_context.machine.run(program);
    const int exitCode = exitCodeOf(result);
    const int level = LogLevel::ofResult(exitCode);
    reporter.log(level, u"Output:"_s);
    const QString indent = u"  "_s;
    const QStringList lines = outputLines(result.output);
    for (const QString &line : lines)
        reporter.log(level, indent + line);
    if (result.outcome == ProgramResult::Outcome::NotStarted)
        reporter.log(level, indent + tr("The program could not be started."));
    else if (result.outcome == ProgramResult::Outcome::TimedOut)
        reporter.log(
            level,
            indent +
                tr("The program was still running after %1 ms and has been ended.").arg(program.timeoutMs));
    else if (result.outcome == ProgramResult::Outcome::Crashed)
        reporter.log(level, indent + tr("The program crashed."));
    return exitCode;
}

QString removalCommand(const QString &path)
{
    QString escaped = path;
    escaped.replace(u'%', "%%"_L1);
    return u"rmdir /s /q \""_s + escaped + u'"';
}

bool CommandRunner::removeDirectory(const QString &path)
{
    Reporter &reporter = m_context.reporter;
    if (Util::holdsQuoteOrControl(path)) {
        reporter.log(
            LogLevel::failure,
            tr("The name of this folder contains a character that ends or changes a command; it is not "
               "removed: %1")
                .arg(path));
        return true;
    }
    const auto way = Util::HeldWay::toEntry(path);
    if (!isTrustedWay(reporter, way, path))
        return true;
    const std::optional<QByteArray> commandLine = Util::toOem(removalCommand(path));
    if (!commandLine) {
        reporter.log(LogLevel::failure,
                     tr("The name of this folder cannot be written in the command interpreter's code "
                        "page; it is not removed: %1")
                         .arg(path));
        return true;
    }

    // The batch file is next to the install dir, not in it: the file's name is appended without a separator.
    const QString batchFile = m_context.state.installDir + u"work.bat"_s;
    // Only a new and complete file is ours to run: a command cut short by a full disk names another folder.
    // Nobody may change it until the interpreter has read it.
    const Util::ScriptFile script(batchFile, *commandLine);
    if (!script) {
        reporter.log(LogLevel::failure,
                     tr("Unable to create %1; this folder is not removed: %2").arg(batchFile, path));
        return true;
    }

    // The line leaves "/D" out, which keeps the interpreter from running a command of the user's first.
    reporter.log(LogLevel::step, u"Command:cmd.exe /C %1 "_s.arg(batchFile));
    const ProgramResult result = m_context.machine.run({.program = u"cmd.exe"_s,
                                                        .arguments = {u"/D"_s, u"/C"_s, batchFile},
                                                        .workFolder = m_context.state.installDir,
                                                        .timeoutMs = usualTimeoutMs,
                                                        .place = ProgramCall::Place::SystemFolder,
                                                        .quoting = ProgramCall::Quoting::CommandInterpreter,
                                                        .outputLimit = maxRemovalOutputBytes});
    reporter.log(LogLevel::ofResult(exitCodeOf(result)), u" output:"_s + Util::fromOem(result.output));
    return true;
}

bool CommandRunner::removeMatchingFiles(const QString &folder, const QString &pattern)
{
    if (!QFileInfo(folder).isDir())
        return false;
    const auto way = Util::HeldWay::toFolder(folder);
    if (!isTrustedWay(m_context.reporter, way, folder))
        return true;
    QStringList matching;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (entries.hasNext()) {
        entries.next();
        const QString path = folder + u'/' + entries.fileName();
        if (path.toUpper().contains(pattern))
            matching.append(path);
    }
    for (const QString &path : std::as_const(matching)) {
        m_context.reporter.log(LogLevel::step, u"Removing:"_s + path);
        QFile::remove(path);
    }
    return true;
}

} // namespace Nvx::Run
