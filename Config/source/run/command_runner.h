#pragma once

#include "run/step_context.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Runs external programs and removes folders and files, telling the log what is done. Nothing here stops the
/// run: what fails is logged.
class CommandRunner
{
    Q_DECLARE_TR_FUNCTIONS(CommandRunner)

public:
    static constexpr int usualTimeoutMs = 30000;
    static constexpr int noTimeout = -1;

    // What runCommand returns for a program that gave no exit code.
    static constexpr int notStarted = -2; ///< there is no such program, or it may not be started
    static constexpr int timedOut = -1;   ///< it was ended at the time-out

    explicit CommandRunner(const StepContext &context);

    /// Runs a program and copies the first lines of its output into the log, at the exit code as level.
    /// program is a full path, workFolder empty for the install dir, timeoutMs noTimeout for no limit.
    /// Returns the exit code, or notStarted or timedOut. A program still running at the time-out is ended.
    int runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                   int timeoutMs = usualTimeoutMs);

    /// Runs a program of the operating system, named by its file name and started from the system's own
    /// folder; the log shows the bare name. Otherwise as runCommand.
    int runSystemCommand(const QString &fileName, const QStringList &arguments, const QString &workFolder,
                         int timeoutMs = usualTimeoutMs);

    /// Removes a folder with all that it holds, through the command interpreter. Always true: a folder that
    /// is missing or stays is a matter for the log.
    bool removeDirectory(const QString &path);

    /// Removes the files of one folder, hidden ones too, whose upper-cased path, folder included, contains
    /// the pattern. The pattern is compared as it stands, so one with a lower-case letter never matches.
    /// False when there is no such folder.
    bool removeMatchingFiles(const QString &folder, const QString &pattern);

private:
    struct Call;
    int run(const Call &call);

    StepContext m_context;
};

/// The batch file that removes a folder: one command line for the command interpreter. A percent sign is
/// doubled, because the interpreter would take the name between two of them for a variable and remove another
/// folder; nothing else is escaped.
QString removalCommand(const QString &path);
