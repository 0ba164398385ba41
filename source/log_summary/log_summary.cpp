#include "log_summary/log_summary.h"

#include "nvx_util/regular_file.h"
#include "nvx_util/whole_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace LogSummary {

namespace {

ExitCode exitCodeOf(const Machine &machine)
{
    if (!machine.run)
        return ExitCode::Unreadable;
    switch (machine.run->verdict) {
    case Verdict::Ok:
        return ExitCode::Ok;
    case Verdict::Failed:
        return ExitCode::Failed;
    case Verdict::Incomplete:
    case Verdict::Waiting:
        break;
    }
    return ExitCode::Unfinished;
}

QStringList filesIn(const QDir &folder, const QString &pattern)
{
    // The folder's own list would hold about a kilobyte for each file.
    QStringList files;
    QDirIterator found(folder.path(), {pattern}, QDir::Files | QDir::Hidden);
    while (found.hasNext()) {
        found.next();
        files += folder.filePath(found.fileName());
    }
    files.sort();
    return files;
}

/// Calls the function with each machine of the arguments. An argument without logs counts as a machine.
void forEachMachine(const Arguments &arguments, const std::function<void(Machine)> &take)
{
    for (const QString &argument : arguments.logs) {
        const Result<QStringList> logs = logsOf(argument);
        if (!logs)
            take({.name = argument, .file = argument, .problem = logs.error()});
        else
            for (const QString &log : *logs)
                take(readMachine(log));
    }
}

ExitCode summarize(const Arguments &arguments, const std::function<void(const QByteArray &)> &write)
{
    ExitCode worst = ExitCode::Ok;
    bool isFirst = true;
    write(reportStart(arguments.format));
    forEachMachine(arguments, [&](Machine machine) {
        if (!arguments.machine.isEmpty())
            machine.name = arguments.machine;
        worst = std::max(worst, exitCodeOf(machine));
        write(machineReport(machine, arguments.format, isFirst));
        isFirst = false;
    });
    write(reportEnd(arguments.format));
    return worst;
}

ExitCode report(const Arguments &arguments, QTextStream &output, QTextStream &errors)
{
    if (arguments.reportFile.isEmpty()) {
        return summarize(arguments, [&output](const QByteArray &piece) {
            output << QString::fromUtf8(piece);
            output.flush();
        });
    }
    QByteArray text;
    const ExitCode exitCode = summarize(arguments, [&text](const QByteArray &piece) { text += piece; });
    if (Nvx::Util::replaceWholeFile(arguments.reportFile, text))
        return exitCode;
    errors << arguments.reportFile << ": could not be written\n";
    return ExitCode::Unreadable;
}

ExitCode run(const QStringList &words, QTextStream &output, QTextStream &errors)
{
    if (words.size() <= 1) {
        output << helpText();
        return ExitCode::Unfinished;
    }
    const Result<Arguments> arguments = readArguments(words);
    if (!arguments) {
        errors << arguments.error() << "\nNVXLogSummary --help explains the options.\n";
        return ExitCode::Unfinished;
    }
    switch (arguments->task) {
    case Arguments::Task::Help:
        output << helpText();
        return ExitCode::Ok;
    case Arguments::Task::Version:
        output << "NVXLogSummary " NVX_VERSION "\n";
        return ExitCode::Ok;
    case Arguments::Task::Summarize:
        break;
    }
    return report(*arguments, output, errors);
}

} // namespace

Result<QStringList> logsOf(const QString &argument)
{
    const QFileInfo info(argument);
    if (info.isDir()) {
        QStringList files = filesIn(QDir(argument), u"*.log"_s);
        if (files.isEmpty())
            return Failure{u"there is no log in this folder"_s};
        return files;
    }
    const QString name = info.fileName();
    if (info.exists() || !(name.contains(u'*') || name.contains(u'?')))
        return QStringList{argument};
    QStringList files = filesIn(info.dir(), name);
    if (files.isEmpty())
        return Failure{u"there is no such log"_s};
    return files;
}

Machine readMachine(const QString &file)
{
    RunReader reader;
    LineSplitter lines([&reader](QByteArrayView line) { reader.addLine(line); });
    Machine machine{.name = QFileInfo(file).completeBaseName(), .file = file};
    bool isEmpty = true;
    machine.problem = Nvx::Util::readRegularFile(file, maxLogBytes, [&](QByteArrayView piece) {
        isEmpty = false;
        lines.add(piece);
    });
    if (!machine.problem.isEmpty())
        return machine;
    lines.finish();
    machine.run = reader.lastRun();
    if (!machine.run)
        machine.problem = isEmpty ? u"the log is empty"_s : u"no run of NVXConfig begins in this file"_s;
    return machine;
}

ExitCode runLogSummary(const QStringList &arguments, QTextStream &output, QTextStream &errors)
{
    const ExitCode exitCode = run(arguments, output, errors);
    output.flush();
    errors.flush();
    return exitCode;
}

} // namespace LogSummary
