#pragma once

// What the folders windows and unix each implement for the rest of this library.

#include "nvx_util/machine.h"
#include "nvx_util/processor_counts.h"

#include <QString>

#include <memory>
#include <optional>

class QProcess;

namespace Nvx::Util {
class ProcessTable;
class ServiceControl;
} // namespace Nvx::Util

namespace Nvx::Util::Platform {

/// The folder above the per-user data folders of programs.
QString userDataRoot();

/// The folder above the data folders that all users share.
QString allUsersDataRoot();

/// The folder of the documents that all users share.
QString publicDocumentsRoot();

/// What the operating system says of the processors; nothing when it does not answer.
std::optional<ProcessorCounts> probeProcessors();

/// The whole command line of this process.
QString commandLine();

/// The full path of a program of the operating system, such as "cmd.exe" or "regedit"; empty when there
/// is none.
QString systemProgram(const QString &fileName);

/// Hands the arguments of the call to the process, quoted as the call says.
void setArguments(QProcess &process, const ProgramCall &call);

/// Sets the outcome and the exit code of a program that ended by itself.
void setEnd(const QProcess &process, ProgramResult &result);

/// Waits at most timeoutMs until there is no such process. It need not be a child of ours.
void waitForEnd(qint64 process, int timeoutMs);

/// The processes of the machine.
ProcessTable &processes();

/// The services of the machine.
ServiceControl &services();

QString commonDesktopFolder();

void notifyAssociationsChanged();

/// Makes a shell link; see Machine::createShellLink.
qint32 createShellLink(const ShellLink &link);

/// Waits until the disk has what was written through the open descriptor. False when it could not take it.
bool flushToDisk(int descriptor);

/// Gives a file another name in its folder. False, and nothing changed, when the name is taken.
bool renameToFreeName(const QString &from, const QString &to);

/// Gives a file another name in its folder, in place of the file that has it. False, and nothing changed,
/// when that file cannot be replaced.
bool renameOver(const QString &from, const QString &to);

/// Makes this process the one that writes a file, for as long as the answer lives. Null when there is no such
/// file, or another process has claimed it. Where the system keeps an open file from being removed, that is
/// all that is needed, and the answer is never null.
std::shared_ptr<void> claimFile(const QString &path);

} // namespace Nvx::Util::Platform
