#pragma once

#include "message_table_check/arguments.h"
#include "message_table_check/findings.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace TableCheck {

/// A file that could not be checked.
struct UnusableFile
{
    QString file;
    QString reason;
};

/// The result of a run.
struct Report
{
    std::vector<FileReport> files;
    std::vector<UnusableFile> unusable;
};

/// The report without the findings that the arguments do not ask for: those of other rules, and those of
/// rules that stay within their allowance in the file. The counts are unchanged.
FileReport reducedReport(const FileReport &report, const Arguments &arguments);

/// One line for the counts of a file, such as "errors.xml: 12 messages, 1 new, 0 obsolete".
QString statusLine(const FileReport &report);

/// The findings as lines "FILE:LINE: TEXT [RULE]"; unusable files are left out.
QByteArray textReport(const Report &report);

/// The findings as a SARIF 2.1.0 log. Unusable files are notifications of the run.
QByteArray sarifReport(const Report &report);

/// The findings as JUnit XML: a test suite for each file, in it a test case for each checked rule. An
/// unusable file is a test case with an error.
QByteArray junitReport(const Report &report, const std::set<Checks::Rule> &rules);

} // namespace TableCheck
