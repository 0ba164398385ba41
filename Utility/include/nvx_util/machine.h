#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

namespace Nvx::Util {

struct ShellLink;
class ProcessTable;
class ServiceControl;

/// An external program to run.
struct ProgramCall
{
    enum class Place
    {
        Path,        ///< program is a full path
        SystemFolder ///< program is the file name of a program in the operating system's folder; without an
                     ///< extension, ".exe" is added
    };
    enum class Quoting
    {
        Arguments,         ///< each argument is passed unchanged
        CommandInterpreter ///< arguments are options and a path for the command interpreter
    };

    QString program;
    QStringList arguments;
    QString workFolder;
    int timeoutMs = 30000; ///< -1 waits without limit
    Place place = Place::Path;
    Quoting quoting = Quoting::Arguments;
    qsizetype outputLimit = -1; ///< maximum number of bytes of output, -1 for all; the rest is discarded
};

/// How the run of a program ended.
struct ProgramResult
{
    enum class Outcome
    {
        Exited,     ///< exitCode is what it returned
        NotStarted, ///< the program does not exist or may not be started
        TimedOut,   ///< still running at the time-out, and terminated
        Crashed     ///< ended by a signal; on Windows every end is Exited
    };

    Outcome outcome = Outcome::NotStarted;
    int exitCode = 0;  ///< signed; if Crashed, 128 plus the number of the signal, as in a shell
    QByteArray output; ///< standard output and standard error, in the order written
};

/// The kinds of message box.
enum class BoxKind
{
    Information,
    Warning,
    Critical,
    Question ///< without a default button
};

enum class BoxAnswer
{
    Yes,
    No,
    Dismissed
};

/// Whose turn it is to configure the machine.
enum class Turn
{
    Ours,
    OtherRuns, ///< another run of this program is in progress
    Unknown    ///< other runs cannot be detected
};

/// The seam between the engine and the machine that it configures: this process, other processes, services,
/// the shell and message boxes. NativeMachine is the real one; tests pass in RecordingMachine.
class Machine
{
public:
    Machine() = default;
    Machine(const Machine &) = delete;
    Machine &operator=(const Machine &) = delete;
    virtual ~Machine() = default;

    /// The whole command line of this process from the operating system, including the program's path.
    virtual QString commandLine() const = 0;

    /// The folder of the running executable, with native separators and no trailing one.
    virtual QString executableFolder() const = 0;

    /// Sets a variable of this process's environment, as 8-bit text. False if that fails.
    virtual bool setProcessVariable(const QByteArray &name, const QByteArray &value) = 0;

    /// Waits until no other run of this program configures the machine, up to that time. Ours lasts until
    /// this object is destroyed or the process ends. Blocks.
    virtual Turn waitForTurn(std::chrono::milliseconds timeout) = 0;

    /// Runs a program without input and waits for its end. A program that is still running at the time-out is
    /// terminated; on Windows, so are the programs that it has started, and all of them end when this process
    /// ends before. Blocks.
    virtual ProgramResult run(const ProgramCall &call) = 0;

    /// Starts a program, given by its full path, that may outlive this process, and waits up to waitMs
    /// milliseconds for its end; 0 does not wait. Each argument is passed unchanged. False if it cannot be
    /// started.
    virtual bool startDetached(const QString &program, const QStringList &arguments, int waitMs) = 0;

    /// Keeps the user from signing out and the system from shutting down during the lifetime of the result;
    /// the system shows the title and the reason, and lets the user do it all the same. Null if that is not
    /// possible.
    virtual std::shared_ptr<void> holdLogoff(const QString &title, const QString &reason) = 0;

    /// Waits. Blocks.
    virtual void sleep(std::chrono::milliseconds duration) = 0;

    /// The running processes.
    virtual ProcessTable &processes() = 0;

    /// The installed services.
    virtual ServiceControl &services() = 0;

    /// The desktop folder shared by all users; empty if there is none.
    virtual QString commonDesktopFolder() const = 0;

    /// Notifies the shell that file associations have changed.
    virtual void notifyAssociationsChanged() = 0;

    /// Creates a shell link and saves it, replacing an existing one. Returns the result of the shell's last
    /// call, 0 for success. Nothing is saved if a string of the link is too long for the shell.
    virtual qint32 createShellLink(const ShellLink &link) = 0;

    /// Shows a modal message box with an OK button.
    virtual void tell(BoxKind kind, const QString &title, const QString &text) = 0;

    /// Shows a modal message box with the buttons Yes and No. Yes is the default, except in a question.
    virtual BoxAnswer ask(BoxKind kind, const QString &title, const QString &text) = 0;
};

} // namespace Nvx::Util
