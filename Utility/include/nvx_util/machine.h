#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>

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
        SystemFolder ///< program is the file name of a program of the operating system, started from there;
                     ///< one without an extension is an .exe
    };
    enum class Quoting
    {
        Arguments,         ///< each argument arrives as it is
        CommandInterpreter ///< arguments are an option and a path for the command interpreter
    };

    QString program;
    QStringList arguments;
    QString workFolder;
    int timeoutMs = 30000; ///< -1 waits without limit
    Place place = Place::Path;
    Quoting quoting = Quoting::Arguments;
    qsizetype outputLimit = -1; ///< bytes of output to keep, -1 for all; what comes after is read and dropped
};

/// What became of a program.
struct ProgramResult
{
    enum class Outcome
    {
        Exited,     ///< exitCode is what it returned
        NotStarted, ///< there is no such program, or it may not be started
        TimedOut,   ///< it was still running at the time-out and has been ended
        Crashed     ///< a signal ended it; Windows does not report that, there any end is Exited
    };

    Outcome outcome = Outcome::NotStarted;
    int exitCode = 0;  ///< for Exited, signed; for Crashed 128 more than the signal's number, as in a shell
    QByteArray output; ///< what it wrote, standard output and standard error in the order written
};

/// The kinds of box shown to the user.
enum class BoxKind
{
    Information,
    Warning,
    Critical,
    Question ///< whose answer is open: no button is the default
};

enum class Answer
{
    Yes,
    No,
    Dismissed
};

/// The seam between the engine and the machine it configures: the process itself, other processes, the shell
/// and the boxes on the screen. NativeMachine does it for real; tests hand in one that records.
class Machine
{
public:
    Machine() = default;
    Machine(const Machine &) = delete;
    Machine &operator=(const Machine &) = delete;
    virtual ~Machine() = default;

    /// The whole command line of this process as the operating system has it, program path included.
    virtual QString commandLine() const = 0;

    /// The folder that holds the running executable, native separators, no trailing one.
    virtual QString executableFolder() const = 0;

    /// Sets a variable of this process's environment, as 8-bit text. False when that was refused.
    virtual bool setProcessVariable(const QByteArray &name, const QByteArray &value) = 0;

    /// Runs a program with no input and waits for its end. A program that is still running at the time-out is
    /// ended. Blocks.
    virtual ProgramResult run(const ProgramCall &call) = 0;

    /// Starts a program, named by its full path, that lives on without us, and waits at most waitMs for its
    /// end, with 0 not at all. Each argument arrives as it is. False when it could not be started.
    virtual bool startDetached(const QString &program, const QStringList &arguments, int waitMs) = 0;

    /// Lets time pass. Blocks.
    virtual void sleep(std::chrono::milliseconds duration) = 0;

    /// The processes that run now.
    virtual ProcessTable &processes() = 0;

    /// The services that are installed.
    virtual ServiceControl &services() = 0;

    /// The desktop folder of all users; empty when the machine has none.
    virtual QString commonDesktopFolder() const = 0;

    /// Tells the shell that file associations changed.
    virtual void notifyAssociationsChanged() = 0;

    /// Makes a shell link and saves it, in place of one that is there. Answers the result of the shell's last
    /// call, 0 for success; nothing is saved when a text of the link is too long for it.
    virtual qint32 createShellLink(const ShellLink &link) = 0;

    /// Shows a modal box with an OK button.
    virtual void tell(BoxKind kind, const QString &title, const QString &text) = 0;

    /// Shows a modal box with the buttons Yes and No. Yes is the default, except in a question.
    virtual Answer ask(BoxKind kind, const QString &title, const QString &text) = 0;
};

} // namespace Nvx::Util
