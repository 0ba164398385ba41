#pragma once

#include <QStringList>

class QTextStream;

namespace UpdateTable {

/// The process's exit codes.
enum class ExitCode
{
    Done = 0,
    Failed = 1,        ///< an operation failed; the following ones were not started
    WrongArguments = 2 ///< no operation was started
};

enum class OutputDevice
{
    FileOrPipe,
    Terminal
};

/// Runs the program with the arguments, without its own name. Writes the progress of the work, or the usage
/// if requested, to output; and to errors the usage if the arguments are wrong, what the operations report
/// (message_table_synchronisation.h, translation_update.h), and last the number of source files skipped, if
/// any.
ExitCode runUpdateErrorTable(const QStringList &arguments, QTextStream &output, QTextStream &errors,
                             OutputDevice outputDevice);

} // namespace UpdateTable
