#include "message_table_check/arguments.h"

#include <QCommandLineParser>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;
using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;

namespace TableCheck {

namespace {

const QString onlyOption = u"only"_s;
const QString withoutOption = u"without"_s;
const QString allowOption = u"allow"_s;
const QString formatOption = u"format"_s;
const QString outputOption = u"output"_s;
const QString statusOption = u"status"_s;
const QString forQt6Option = u"for-qt6"_s;
const QString fromQt6Option = u"from-qt6"_s;
const QString helpOption = u"help"_s;

/// Declares the options.
void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Checks message tables (.xml) and translation files (.ts), or converts a translation file.\n"
        "\n"
        "Without --for-qt6 and --from-qt6 the files are checked. Each finding is one line, FILE:LINE: TEXT\n"
        "[RULE]. The exit status is 0 if there is none, 1 if there are findings, and 2 if a file cannot be\n"
        "used or the arguments are wrong."_s);
    parser.addOptions({
        {onlyOption, u"Checks only these rules, separated by commas."_s, u"rules"_s},
        {withoutOption, u"Leaves these rules out."_s, u"rules"_s},
        {allowOption,
         u"Does not report a rule in a file in which no more than that many messages or strings have "
         u"findings "
         "of it; a number, or a percentage such as unfinished=10%. May be repeated."_s,
         u"rule=limit"_s},
        {formatOption,
         u"Writes the findings as text (the default), sarif (SARIF 2.1.0) or junit (JUnit XML)."_s,
         u"format"_s},
        {{u"o"_s, outputOption},
         u"Writes the findings into this file instead of the standard output."_s,
         u"file"_s},
        {statusOption, u"Writes a line with the counts of each file to the standard error."_s},
        {forQt6Option,
         u"Writes the translation file IN for today's tools into OUT: without the element that the tools of "
         "Qt 6 refuse, or, if OUT ends in .xlf or .xliff, as XLIFF 1.2."_s},
        {fromQt6Option,
         u"Takes the translations in IN, edited in such a form, over into the translation file OUT. Strings "
         "that are only in OUT stay."_s},
        {{u"h"_s, helpOption}, u"Shows this text."_s},
    });
    parser.addPositionalArgument(u"FILE"_s,
                                 u"A message table or a translation file; with --for-qt6 and "
                                 "--from-qt6 two files, IN and OUT."_s,
                                 u"FILE..."_s);
}

Result<Rule> readRule(const QString &name)
{
    if (const std::optional<Rule> rule = Checks::ruleNamed(name))
        return *rule;
    return Failure{u"There is no rule '%1'."_s.arg(name)};
}

Result<std::set<Rule>> readRules(const QStringList &values)
{
    std::set<Rule> rules;
    for (const QString &value : values) {
        for (const QString &name : value.split(u',')) {
            const Result<Rule> rule = readRule(name.trimmed());
            if (!rule)
                return Failure{rule.error()};
            rules.insert(*rule);
        }
    }
    return rules;
}

Result<std::set<Rule>> chosenRules(const QCommandLineParser &parser)
{
    const Result<std::set<Rule>> only = readRules(parser.values(onlyOption));
    const Result<std::set<Rule>> without = readRules(parser.values(withoutOption));
    for (const auto *rules : {&only, &without}) {
        if (!*rules)
            return *rules;
    }
    std::set<Rule> chosen = *only;
    if (!parser.isSet(onlyOption))
        chosen.insert(Checks::allRules().begin(), Checks::allRules().end());
    for (const Rule rule : *without)
        chosen.erase(rule);
    return chosen;
}

Outcome readAllowance(const QString &value, std::map<Rule, Allowance> &allowances)
{
    const qsizetype sign = value.indexOf(u'=');
    if (sign < 0)
        return Failure{u"'%1' is not RULE=LIMIT."_s.arg(value)};
    const Result<Rule> rule = readRule(value.first(sign));
    if (!rule)
        return Failure{rule.error()};
    QString limit = value.sliced(sign + 1);
    Allowance allowance;
    allowance.isPercentage = limit.endsWith(u'%');
    if (allowance.isPercentage)
        limit.chop(1);
    bool isNumber = false;
    allowance.number = limit.toInt(&isNumber);
    if (!isNumber || allowance.number < 0)
        return Failure{u"'%1' is not a limit."_s.arg(value.sliced(sign + 1))};
    allowances[*rule] = allowance;
    return Done();
}

Result<ReportFormat> readFormat(const QString &name)
{
    if (name.isEmpty() || name == "text"_L1)
        return ReportFormat::Text;
    if (name == "sarif"_L1)
        return ReportFormat::Sarif;
    if (name == "junit"_L1)
        return ReportFormat::JUnit;
    return Failure{u"There is no format '%1'."_s.arg(name)};
}

Outcome checkFiles(const Arguments &arguments)
{
    if (arguments.task == Arguments::Task::Check && arguments.files.isEmpty())
        return Failure{u"No file is given."_s};
    if (arguments.task != Arguments::Task::Check && arguments.files.size() != 2)
        return Failure{u"A conversion needs two files, IN and OUT."_s};
    return Done();
}

Result<Arguments::Task> chosenTask(const QCommandLineParser &parser)
{
    if (parser.isSet(forQt6Option) && parser.isSet(fromQt6Option))
        return Failure{u"--for-qt6 and --from-qt6 exclude each other."_s};
    if (parser.isSet(helpOption))
        return Arguments::Task::Help;
    if (parser.isSet(forQt6Option))
        return Arguments::Task::ConvertForQt6;
    return parser.isSet(fromQt6Option) ? Arguments::Task::TakeBack : Arguments::Task::Check;
}

} // namespace

Result<Arguments> readArguments(const QStringList &words)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(words))
        return Failure{parser.errorText()};
    const Result<Arguments::Task> task = chosenTask(parser);
    if (!task)
        return Failure{task.error()};
    Arguments arguments;
    arguments.task = *task;
    if (*task == Arguments::Task::Help)
        return arguments;
    arguments.files = parser.positionalArguments();
    arguments.reportFile = parser.value(outputOption);
    arguments.showsStatus = parser.isSet(statusOption);
    const Outcome files = checkFiles(arguments);
    if (!files)
        return Failure{files.error()};

    const Result<std::set<Rule>> rules = chosenRules(parser);
    if (!rules)
        return Failure{rules.error()};
    arguments.rules = *rules;
    const Result<ReportFormat> format = readFormat(parser.value(formatOption));
    if (!format)
        return Failure{format.error()};
    arguments.format = *format;
    const QStringList allowances = parser.values(allowOption);
    for (const QString &value : allowances) {
        const Outcome read = readAllowance(value, arguments.allowances);
        if (!read)
            return Failure{read.error()};
    }
    return arguments;
}

QString helpText()
{
    QCommandLineParser parser;
    declareOptions(parser);
    QString text = parser.helpText();
    text += u"\nRules:\n"_s;
    for (const Rule rule : Checks::allRules())
        text += u"  %1 %2\n"_s.arg(Checks::ruleName(rule), -12).arg(Checks::ruleDescription(rule));
    return text;
}

} // namespace TableCheck
