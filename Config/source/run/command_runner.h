#pragma once

#include "run/step_context.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Nvx::Util {
struct ProgramCall;
}

namespace Nvx::Run {

/// Runs external programs and removes folders and files; logs each of these. Nothing here stops the run:
/// failures are logged.
class CommandRunner
{
    Q_DECLARE_TR_FUNCTIONS(CommandRunner)

public:
    static constexpr int usualTimeoutMs = 30'000;
    static constexpr int noTimeout = -1;

    /// How much of a removal's output is logged. The interpreter may write a line for each file.
    static constexpr qsizetype maxRemovalOutputBytes = 64 * 1024;

    // What runCommand returns for a program without an exit code.
    static constexpr int notStarted = -2; ///< the program does not exist or must not be started
    static constexpr int timedOut = -1;   ///< the program was ended at the time-out

    explicit CommandRunner(const StepContext &context);

    /// Runs a program and copies the first lines of its output into the log, with the exit code as their
    /// level. program is a full path; an empty workFolder means the install dir; timeoutMs may be noTimeout.
    /// A program that is still running at the time-out is ended. Returns the exit code, notStarted or
    /// timedOut.
    int runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                   int timeoutMs = usualTimeoutMs);

    /// Like runCommand, for a program of the operating system: it is started from the system's own folder and
    /// logged by its file name alone.
    int runSystemCommand(const QString &fileName, const QStringList &arguments, const QString &workFolder,
                         int timeoutMs = usualTimeoutMs);

    /// Removes a folder with all its contents, through the command interpreter. Always returns true; a folder
    /// that is missing or cannot be removed is only logged.
    bool removeDirectory(const QString &path);

    /// Removes the files of one folder, hidden ones included, whose upper-cased path contains the pattern.
    /// The folder is part of the path. The pattern is not upper-cased, so a pattern with a lower-case letter
    /// never matches. Returns false if the folder does not exist.
    bool removeMatchingFiles(const QString &folder, const QString &pattern);

private:
    int run(Util::ProgramCall program);

    StepContext m_context;
};

/// The batch file that removes a folder: one command line for the command interpreter. Percent signs are
/// doubled, since the interpreter would replace a name between two of them with a variable's value and remove
/// another folder. Nothing else is escaped.
QString removalCommand(const QString &path);

} // namespace Nvx::Run
