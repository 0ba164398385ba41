#pragma once

#include <QStringList>

class QTextStream;

namespace Error {

/// The process's exit codes.
enum class ExitCode
{
    Done = 0,
    Failed = 1,        ///< an operation failed; those after it were not begun
    WrongArguments = 2 ///< nothing was done
};

enum class OutputDevice
{
    FileOrPipe,
    Terminal
};

/// Runs the program with the arguments, without its own name. Lines about the work and the usage that was
/// asked for go to output; the usage upon wrong arguments, and at the very end how many source files were
/// skipped if any were, to errors.
ExitCode runUpdateErrorTable(const QStringList &arguments, QTextStream &output, QTextStream &errors,
                             OutputDevice outputDevice);

} // namespace Error
