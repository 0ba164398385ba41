#include "log_summary/arguments.h"

#include <QCommandLineParser>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace LogSummary {

namespace {

const QString detailsOption = u"details"_s;
const QString jsonOption = u"json"_s;
const QString machineOption = u"machine"_s;
const QString outputOption = u"output"_s;
const QString helpOption = u"help"_s;
const QString versionOption = u"version"_s;

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Reads logs of NVXConfig.exe and writes one line about the last run in each: the verdict, what the\n"
        "run did, its language, its time, and the machine.\n"
        "\n"
        "ok          every step that the log reports has succeeded\n"
        "failed      the run has ended, but a step has failed\n"
        "incomplete  the run has been ended, or is still running\n"
        "waiting     the run shows a message box, or was ended while it showed one\n"
        "unreadable  there is no log, or no run in it\n"
        "\n"
        "The exit status is that of the worst machine: 0 if all are ok, 1 after failed, 2 after incomplete "
        "or\n"
        "waiting, 3 after unreadable. It is 2 if the arguments are wrong, and 3 if the report cannot be\n"
        "written."_s);
    parser.addOptions({
        {detailsOption, u"Writes the failed steps below each line, with the commands and their output."_s},
        {jsonOption, u"Writes JSON with all of this."_s},
        {machineOption, u"Uses this name for the machine. Only for a single log."_s, u"name"_s},
        {{u"o"_s, outputOption},
         u"Writes the report into this file instead of the standard output."_s,
         u"file"_s},
        {{u"h"_s, helpOption}, u"Shows this text."_s},
        {{u"v"_s, versionOption}, u"Shows the version."_s},
    });
    parser.addPositionalArgument(u"LOG"_s,
                                 u"A log, a pattern of logs (reports\\PC-*.log), or a folder, in which all "
                                 "files *.log are read. The name of a log without its suffix is the name of "
                                 "the machine."_s,
                                 u"LOG..."_s);
}

} // namespace

Result<Arguments> readArguments(const QStringList &words)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(words))
        return Failure{parser.errorText()};
    Arguments arguments;
    if (parser.isSet(helpOption) || parser.isSet(versionOption)) {
        arguments.task = parser.isSet(helpOption) ? Arguments::Task::Help : Arguments::Task::Version;
        return arguments;
    }
    arguments.logs = parser.positionalArguments();
    if (arguments.logs.isEmpty())
        return Failure{u"No log is given."_s};
    if (parser.isSet(detailsOption) && parser.isSet(jsonOption))
        return Failure{u"--details and --json exclude each other."_s};
    if (parser.isSet(jsonOption))
        arguments.format = ReportFormat::Json;
    else if (parser.isSet(detailsOption))
        arguments.format = ReportFormat::Details;
    arguments.machine = parser.value(machineOption);
    if (parser.isSet(machineOption) && arguments.logs.size() > 1)
        return Failure{u"--machine is for a single log."_s};
    if (parser.isSet(machineOption) && arguments.machine.isEmpty())
        return Failure{u"The name of the machine is empty."_s};
    arguments.reportFile = parser.value(outputOption);
    if (parser.isSet(outputOption) && arguments.reportFile.isEmpty())
        return Failure{u"The name of the report is empty."_s};
    return arguments;
}

QString helpText()
{
    QCommandLineParser parser;
    declareOptions(parser);
    return parser.helpText();
}

} // namespace LogSummary
