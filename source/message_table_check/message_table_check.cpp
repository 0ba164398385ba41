#include "message_table_check/message_table_check.h"

#include "message_table_check/arguments.h"
#include "message_table_check/exchange.h"
#include "message_table_check/report.h"
#include "nvx_util/whole_file.h"

#include <QTextStream>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Result;

namespace TableCheck {

namespace {

Report checkFiles(const Arguments &arguments, QTextStream &errors)
{
    Report report;
    for (const QString &file : arguments.files) {
        const Result<FileReport> checked = checkFile(file);
        if (!checked) {
            errors << file << ": " << checked.error() << '\n';
            report.unusable.push_back({file, checked.error()});
            continue;
        }
        if (arguments.showsStatus)
            errors << statusLine(*checked) << '\n';
        report.files.push_back(reducedReport(*checked, arguments));
    }
    return report;
}

QByteArray formatted(const Report &report, const Arguments &arguments)
{
    switch (arguments.format) {
    case ReportFormat::Sarif:
        return sarifReport(report);
    case ReportFormat::JUnit:
        return junitReport(report, arguments.rules);
    case ReportFormat::Text:
        break;
    }
    return textReport(report);
}

ExitCode check(const Arguments &arguments, QTextStream &output, QTextStream &errors)
{
    const Report report = checkFiles(arguments, errors);
    const QByteArray text = formatted(report, arguments);
    if (arguments.reportFile.isEmpty()) {
        output << QString::fromUtf8(text);
    } else if (!Nvx::Util::replaceWholeFile(arguments.reportFile, text)) {
        errors << arguments.reportFile << ": could not be written\n";
        return ExitCode::Unusable;
    }
    if (!report.unusable.empty())
        return ExitCode::Unusable;
    const bool isClean = std::all_of(report.files.begin(), report.files.end(),
                                     [](const FileReport &file) { return file.findings.empty(); });
    return isClean ? ExitCode::Clean : ExitCode::Findings;
}

template<typename Value>
ExitCode ended(const Result<Value> &result, QTextStream &errors)
{
    if (result)
        return ExitCode::Clean;
    errors << result.error() << '\n';
    return ExitCode::Unusable;
}

ExitCode takeBackFile(const Arguments &arguments, QTextStream &output, QTextStream &errors)
{
    const Result<TakenOver> taken = takeBack(arguments.files.at(0), arguments.files.at(1));
    if (taken)
        output << "Changed " << taken->changed << " and added " << taken->added << " strings\n";
    return ended(taken, errors);
}

ExitCode run(const QStringList &words, QTextStream &output, QTextStream &errors)
{
    const Result<Arguments> arguments = readArguments(words);
    if (!arguments) {
        errors << arguments.error() << "\nMessageTableCheck --help explains the options.\n";
        return ExitCode::Unusable;
    }
    switch (arguments->task) {
    case Arguments::Task::Help:
        output << helpText();
        return ExitCode::Clean;
    case Arguments::Task::ConvertForQt6:
        return ended(convertForQt6(arguments->files.at(0), arguments->files.at(1)), errors);
    case Arguments::Task::TakeBack:
        return takeBackFile(*arguments, output, errors);
    case Arguments::Task::Check:
        break;
    }
    return check(*arguments, output, errors);
}

} // namespace

ExitCode runMessageTableCheck(const QStringList &arguments, QTextStream &output, QTextStream &errors)
{
    const ExitCode exitCode = run(arguments, output, errors);
    output.flush();
    errors.flush();
    return exitCode;
}

} // namespace TableCheck
