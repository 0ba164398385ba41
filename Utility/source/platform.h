#pragma once

// The functions that the folders windows and unix each implement for the rest of this library.

#include "nvx_util/machine.h"
#include "nvx_util/processor_counts.h"
#include "nvx_util/trusted_files.h"

#include <QString>

#include <memory>
#include <optional>

class QProcess;

namespace Nvx::Util {
class ProcessTable;
class ServiceControl;
} // namespace Nvx::Util

namespace Nvx::Util::Platform {

/// The parent folder of the programs' per-user data folders.
QString userDataRoot();

/// The parent folder of the data folders shared by all users.
QString allUsersDataRoot();

/// The folder of the documents shared by all users.
QString publicDocumentsRoot();

/// The processors reported by the operating system; std::nullopt if it reports none.
std::optional<ProcessorCounts> probeProcessors();

/// The whole command line of this process.
QString commandLine();

/// The full path of a program of the operating system, such as "cmd.exe" or "regedit"; empty if it does not
/// exist.
QString systemProgram(const QString &fileName);

/// What the runs of this program on one machine wait for; one run has it at a time, until the object is
/// destroyed. All calls must come from one thread.
class RunLock
{
public:
    RunLock() = default;
    RunLock(const RunLock &) = delete;
    RunLock &operator=(const RunLock &) = delete;
    virtual ~RunLock() = default;

    /// See Machine::waitForTurn.
    virtual Turn wait(std::chrono::milliseconds timeout) = 0;
};

/// The lock of this process. On systems other than Windows it is always ours.
std::shared_ptr<RunLock> runLock();

/// See Machine::holdLogoff. On systems other than Windows it is not possible.
std::shared_ptr<void> holdLogoff(const QString &title, const QString &reason);

/// Passes the arguments of the call to the process, quoted as the call requires.
void setArguments(QProcess &process, const ProgramCall &call);

/// Sets the outcome and the exit code of a program that was not terminated by us.
void setEnd(const QProcess &process, ProgramResult &result);

/// A program that is waited for, together with the programs that it starts.
class ProgramTree
{
public:
    ProgramTree() = default;
    ProgramTree(const ProgramTree &) = delete;
    ProgramTree &operator=(const ProgramTree &) = delete;

    /// Lets the programs that still run continue on their own.
    virtual ~ProgramTree() = default;

    /// To be called after the process has been started; before that, its program does not run.
    virtual void run() = 0;

    /// Terminates all programs of the tree.
    virtual void terminate() = 0;
};

/// Prepares a process that has not been started. On Windows, all programs of the tree end when this process
/// ends; on other systems only the program itself is ended, and only by terminate. The process must outlive
/// the tree.
std::unique_ptr<ProgramTree> programTree(QProcess &process);

/// Waits up to timeoutMs for a process to end. It need not be a child process.
void waitForEnd(qint64 process, int timeoutMs);

/// The processes of the machine.
ProcessTable &processes();

/// The services of the machine.
ServiceControl &services();

QString commonDesktopFolder();

void notifyAssociationsChanged();

/// Creates a shell link; see Machine::createShellLink.
qint32 createShellLink(const ShellLink &link);

/// Waits until everything written through the open descriptor is on the disk. False if it cannot be written.
bool flushToDisk(int descriptor);

/// Gives a new file the owner, the access rights and the attributes of the file that it is going to replace,
/// as far as this process may.
void copyRights(const QString &from, const QString &to);

/// Renames a file within its folder, and waits until the new name is on the disk. A file that another program
/// has open is tried again for half a second. False, with nothing changed, if the new name is in use.
bool renameToFreeName(const QString &from, const QString &to);

/// The same, replacing a file with the new name. At any time, the new name refers to one of the two files.
/// False, with nothing changed, if that file cannot be replaced.
bool renameOver(const QString &from, const QString &to);

/// Reserves a file for writing by this process during the lifetime of the result. Null if the file does not
/// exist or another process has reserved it. Never null on a system that does not remove open files: no lock
/// is needed there.
std::shared_ptr<void> claimFile(const QString &path);

/// What the system reports about a folder or a link.
struct FolderLook
{
    WayPoint point;
    QString
        finalPath; ///< where it is after all links have been followed; empty if the system does not report it
    std::shared_ptr<void> hold;
};

enum class Hold
{
    Yes, ///< the folder cannot be renamed, removed or replaced while FolderLook::hold exists
    No
};

/// Looks at a folder or a link by its native path. A folder that is not in the final path of its parent,
/// unless that is empty, counts as a link. std::nullopt if it does not exist.
std::optional<FolderLook> lookAtFolder(const QString &path, const QString &finalPathOfParent, Hold hold);

/// Who owns and may write an existing file, folder or link.
struct EntryRights
{
    bool isLink = false;
    bool isFolder = false;
    bool isAdministrators = false; ///< owned by administrators
    bool othersMayWrite = false;
};

enum class NewRights
{
    Reserved, ///< only administrators may write, users may read and run; what is in a folder inherits that
    Inherited ///< what the entry inherits from its folder
};

/// std::nullopt if there is no such entry, or the system does not report its rights.
std::optional<EntryRights> rightsOf(const QString &path);

/// Sets the rights of a file or folder, and makes administrators its owner. False if the rights cannot be
/// set.
bool setRights(const QString &path, NewRights rights);

/// Creates a file that only administrators may change; see ScriptFile. Null if it exists or not all bytes can
/// be written; nothing is left of it then.
std::shared_ptr<void> createScriptFile(const QString &path, const QByteArray &contents);

/// Why a regular file is not opened.
inline QString missingFile()
{
    return QStringLiteral("the file does not exist");
}
inline QString irregularFile()
{
    return QStringLiteral("it is not a regular file");
}
inline QString largeFile(qint64 maximumSize)
{
    return QStringLiteral("the file is larger than %1 MiB").arg(maximumSize / (1024 * 1024));
}

/// The size of the pieces in which readRegularFile passes a file on.
inline constexpr qsizetype pieceOfFile = 1024 * 1024;

} // namespace Nvx::Util::Platform
