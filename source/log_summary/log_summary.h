#pragma once

#include "log_summary/report.h"

#include <QStringList>

class QTextStream;

namespace LogSummary {

/// The process's exit codes, in the order of severity.
enum class ExitCode
{
    Ok = 0,
    Failed = 1,
    Unfinished = 2, ///< a run is incomplete or waits; or the arguments are wrong
    Unreadable = 3  ///< a log cannot be read, or the report cannot be written
};

/// A larger file is no log.
inline constexpr qint64 maxLogBytes = qint64{2} << 30;

/// The files that an argument stands for: those of a folder or a pattern, sorted by name, or the file itself.
/// The error is one sentence.
Nvx::Util::Result<QStringList> logsOf(const QString &argument);

/// Reads a log.
Machine readMachine(const QString &file);

/// Runs the program with the arguments, the first of which is its name. Writes the report, or the help if
/// requested, to output, and wrong arguments to errors.
ExitCode runLogSummary(const QStringList &arguments, QTextStream &output, QTextStream &errors);

} // namespace LogSummary
