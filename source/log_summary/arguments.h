#pragma once

#include "nvx_util/result.h"

#include <QString>
#include <QStringList>

namespace LogSummary {

enum class ReportFormat
{
    Text,
    Details, ///< the lines, and below each of them what failed
    Json
};

/// What the program is asked to do.
struct Arguments
{
    enum class Task
    {
        Summarize,
        Help,
        Version
    };

    Task task = Task::Summarize;
    QStringList logs; ///< files, folders, and patterns of files
    ReportFormat format = ReportFormat::Text;
    QString machine;    ///< in place of the name of the only log; empty for that name
    QString reportFile; ///< empty for the standard output
};

/// Reads the arguments, the first of which is the program's name. The error is one sentence.
Nvx::Util::Result<Arguments> readArguments(const QStringList &arguments);

/// The text of "--help", with its line ends.
QString helpText();

} // namespace LogSummary
