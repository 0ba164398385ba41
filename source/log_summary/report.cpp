#include "log_summary/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace LogSummary {

namespace {

// The widths of the columns, each of the longest word in it.
constexpr int verdictWidth = 10;
constexpr int modeWidth = 9;
constexpr int languageWidth = 5;
constexpr int timeWidth = 19;

QLatin1StringView verdictWord(const Machine &machine)
{
    if (!machine.run)
        return "unreadable"_L1;
    switch (machine.run->verdict) {
    case Verdict::Ok:
        return "ok"_L1;
    case Verdict::Failed:
        return "failed"_L1;
    case Verdict::Incomplete:
        return "incomplete"_L1;
    case Verdict::Waiting:
        break;
    }
    return "waiting"_L1;
}

QLatin1StringView modeWord(RunMode mode)
{
    switch (mode) {
    case RunMode::Install:
        return "install"_L1;
    case RunMode::Remove:
        return "remove"_L1;
    case RunMode::StopServices:
        return "stop"_L1;
    case RunMode::Translate:
        return "translate"_L1;
    case RunMode::Unknown:
        break;
    }
    return {};
}

QLatin1StringView kindWord(FailedStep::Kind kind)
{
    switch (kind) {
    case FailedStep::Kind::Program:
        return "program"_L1;
    case FailedStep::Kind::Removal:
        return "removal"_L1;
    case FailedStep::Kind::Line:
        break;
    }
    return "line"_L1;
}

// Text

/// The text in one line. A terminal would obey the control characters.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

QString column(const QString &text, int width)
{
    return (text.isEmpty() ? u"-"_s : printable(text)).leftJustified(width) + u"  "_s;
}

QString sentence(const FailedStep &failure)
{
    return failure.step.isEmpty() ? failure.text : u"%1: %2"_s.arg(failure.step.trimmed(), failure.text);
}

QString remark(const Machine &machine)
{
    if (!machine.run)
        return machine.problem;
    QStringList remarks;
    if (!machine.run->reason.isEmpty())
        remarks.append(machine.run->reason);
    if (!machine.run->failedSteps.empty()) {
        const QString first = sentence(machine.run->failedSteps.front());
        const QString count = QString::number(machine.run->failedStepCount);
        remarks.append(machine.run->failedStepCount == 1 ? u"1 failure: "_s + first
                                                         : u"%1 failures, first: %2"_s.arg(count, first));
    }
    return remarks.join(u"; "_s);
}

QString summaryLine(const Machine &machine)
{
    const Run run = machine.run.value_or(Run());
    QString line = column(verdictWord(machine), verdictWidth) + column(modeWord(run.mode), modeWidth) +
                   column(run.language, languageWidth) +
                   column(QString(run.started).replace(u'T', u' '), timeWidth) + printable(machine.name);
    const QString more = remark(machine);
    if (!more.isEmpty())
        line += u"  "_s + printable(more);
    return line + u'\n';
}

QString details(const Run &run)
{
    QString text;
    for (const FailedStep &failure : run.failedSteps) {
        text += u"    %1  %2\n"_s.arg(QString::number(failure.number), printable(sentence(failure)));
        if (!failure.command.isEmpty())
            text += u"        "_s + printable(failure.command.trimmed()) + u'\n';
        for (const QString &line : failure.output)
            text += u"        "_s + printable(line) + u'\n';
    }
    const qint64 more = run.failedStepCount - qint64(run.failedSteps.size());
    if (more > 0)
        text += u"    and %1 more\n"_s.arg(more);
    return text;
}

// JSON

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject failureObject(const FailedStep &failure)
{
    return {{u"kind"_s, kindWord(failure.kind)},
            {u"number"_s, failure.number},
            {u"text"_s, failure.text},
            {u"step"_s, textOrNull(failure.step)},
            {u"command"_s, textOrNull(failure.command)},
            {u"output"_s, QJsonArray::fromStringList(failure.output)},
            {u"time"_s, textOrNull(failure.time)}};
}

QJsonObject machineObject(const Machine &machine)
{
    const Run run = machine.run.value_or(Run());
    QJsonArray failures;
    for (const FailedStep &failure : run.failedSteps)
        failures.append(failureObject(failure));
    return {{u"machine"_s, machine.name},
            {u"file"_s, machine.file},
            {u"verdict"_s, verdictWord(machine)},
            {u"reason"_s, textOrNull(machine.run ? run.reason : machine.problem)},
            {u"mode"_s, textOrNull(modeWord(run.mode))},
            {u"silent"_s, run.isSilent ? QJsonValue(*run.isSilent) : QJsonValue()},
            {u"language"_s, textOrNull(run.language)},
            {u"started"_s, textOrNull(run.started)},
            {u"ended"_s, textOrNull(run.ended)},
            {u"failedStepCount"_s, run.failedStepCount},
            {u"failedSteps"_s, failures}};
}

} // namespace

QByteArray reportStart(ReportFormat format)
{
    if (format != ReportFormat::Json)
        return {};
    return "{\"program\": \"NVXLogSummary\", \"version\": \"" NVX_VERSION "\", \"machines\": [\n";
}

QByteArray machineReport(const Machine &machine, ReportFormat format, bool isFirst)
{
    if (format == ReportFormat::Json) {
        const QByteArray object = QJsonDocument(machineObject(machine)).toJson(QJsonDocument::Compact);
        return isFirst ? object : ",\n" + object;
    }
    QString text = summaryLine(machine);
    if (format == ReportFormat::Details && machine.run)
        text += details(*machine.run);
    return text.toUtf8();
}

QByteArray reportEnd(ReportFormat format)
{
    return format == ReportFormat::Json ? "\n]}\n" : QByteArray();
}

} // namespace LogSummary
