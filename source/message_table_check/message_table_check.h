#pragma once

#include <QStringList>

class QTextStream;

namespace TableCheck {

/// The process's exit codes.
enum class ExitCode
{
    Clean = 0,
    Findings = 1,
    Unusable = 2 ///< wrong arguments, or a file that cannot be read or written
};

/// Runs the program with the arguments, the first of which is its name. Writes the report, or the help if
/// requested, to output; the status, unusable files and wrong arguments to errors.
ExitCode runMessageTableCheck(const QStringList &arguments, QTextStream &output, QTextStream &errors);

} // namespace TableCheck
