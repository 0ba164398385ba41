#pragma once

#include "message_checks/rule.h"
#include "nvx_util/result.h"

#include <QString>
#include <QStringList>

#include <map>
#include <set>

namespace TableCheck {

enum class ReportFormat
{
    Text,
    Sarif,
    JUnit
};

/// How many messages or strings of a file may have findings of a rule before they are reported.
struct Allowance
{
    int number = 0;
    bool isPercentage = false; ///< of all messages or strings of the file
};

/// What the program is asked to do.
struct Arguments
{
    enum class Task
    {
        Help,
        Check,
        ConvertForQt6, ///< the first file for today's tools, into the second
        TakeBack       ///< the first file, edited with today's tools, into the second
    };

    Task task = Task::Check;
    QStringList files;
    ReportFormat format = ReportFormat::Text;
    QString reportFile; ///< empty for the standard output
    bool showsStatus = false;
    std::set<Checks::Rule> rules; ///< those that are checked
    std::map<Checks::Rule, Allowance> allowances;
};

/// Reads the arguments, the first of which is the program's name. The error is one sentence.
Nvx::Util::Result<Arguments> readArguments(const QStringList &arguments);

/// The text of "--help", with its line ends.
QString helpText();

} // namespace TableCheck
