#include "message_table_check/report.h"

#include "clt_xml_text.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QXmlStreamWriter>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;

namespace TableCheck {

namespace {

bool isAllowed(const Allowance &allowance, int entriesWith, int entries)
{
    if (!allowance.isPercentage)
        return entriesWith <= allowance.number;
    constexpr qint64 hundred = 100;
    return entriesWith * hundred <= qint64(allowance.number) * entries;
}

int countOf(const FileReport &report, Rule rule)
{
    const auto found = report.entriesWith.find(rule);
    return found == report.entriesWith.end() ? 0 : found->second;
}

QString place(const FileReport &file, const Finding &finding)
{
    return u"%1:%2"_s.arg(file.file, QString::number(finding.line));
}

QString lineOf(const FileReport &file, const Finding &finding)
{
    return u"%1: %2 [%3]"_s.arg(place(file, finding), finding.text, Checks::ruleName(finding.rule));
}

// SARIF

/// The file as a URI: relative if the name is.
QString uriOf(const QString &fileName)
{
    const QString path = QDir::fromNativeSeparators(fileName);
    const QUrl url = QDir::isAbsolutePath(path) ? QUrl::fromLocalFile(path) : QUrl();
    return url.isValid() ? url.toString(QUrl::FullyEncoded)
                         : QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

QJsonObject artifact(const QString &fileName)
{
    return {{u"artifactLocation"_s, QJsonObject{{u"uri"_s, uriOf(fileName)}}}};
}

QJsonObject textMessage(const QString &text)
{
    return {{u"text"_s, text}};
}

QJsonObject sarifTool()
{
    QJsonArray rules;
    for (const Rule rule : Checks::allRules()) {
        rules.append(QJsonObject{{u"id"_s, Checks::ruleName(rule)},
                                 {u"shortDescription"_s, textMessage(Checks::ruleDescription(rule))}});
    }
    return {{u"driver"_s, QJsonObject{{u"name"_s, u"MessageTableCheck"_s},
                                      {u"version"_s, QStringLiteral(NVX_VERSION)},
                                      {u"rules"_s, rules}}}};
}

QJsonObject sarifResult(const FileReport &file, const Finding &finding)
{
    QJsonObject physical = artifact(file.file);
    physical.insert(u"region"_s, QJsonObject{{u"startLine"_s, finding.line}});
    const std::vector<Rule> &rules = Checks::allRules();
    const auto index = std::find(rules.begin(), rules.end(), finding.rule) - rules.begin();
    return {{u"ruleId"_s, Checks::ruleName(finding.rule)},
            {u"ruleIndex"_s, static_cast<qint64>(index)},
            {u"level"_s, u"error"_s},
            {u"message"_s, textMessage(finding.text)},
            {u"locations"_s, QJsonArray{QJsonObject{{u"physicalLocation"_s, physical}}}}};
}

QJsonObject sarifInvocation(const Report &report)
{
    QJsonArray notifications;
    for (const UnusableFile &file : report.unusable) {
        const QJsonObject location{{u"physicalLocation"_s, artifact(file.file)}};
        notifications.append(QJsonObject{{u"level"_s, u"error"_s},
                                         {u"message"_s, textMessage(file.reason)},
                                         {u"locations"_s, QJsonArray{location}}});
    }
    return {{u"executionSuccessful"_s, report.unusable.empty()},
            {u"toolExecutionNotifications"_s, notifications}};
}

// JUnit

/// The text with a replacement character for each one that XML cannot represent.
QString xmlTextOf(QString text)
{
    if (Clt::isXmlText(text))
        return text;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair =
            text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        const qsizetype size = isPair ? 2 : 1;
        if (!Clt::isXmlText(QStringView(text).sliced(at, size)))
            text[at] = QChar::ReplacementCharacter;
        at += size - 1;
    }
    return text;
}

void writeText(QXmlStreamWriter &xml, const QString &attribute, const QString &text)
{
    xml.writeAttribute(attribute, xmlTextOf(text));
}

void writeCase(QXmlStreamWriter &xml, const FileReport &file, Rule rule)
{
    QString lines;
    int count = 0;
    for (const Finding &finding : file.findings) {
        if (finding.rule != rule)
            continue;
        lines += lineOf(file, finding) + u'\n';
        ++count;
    }
    xml.writeStartElement(u"testcase"_s);
    writeText(xml, u"classname"_s, file.file);
    xml.writeAttribute(u"name"_s, Checks::ruleName(rule));
    if (count > 0) {
        xml.writeStartElement(u"failure"_s);
        xml.writeAttribute(u"message"_s, u"%1: %2"_s.arg(count).arg(Checks::ruleDescription(rule)));
        xml.writeCharacters(xmlTextOf(lines));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void startSuite(QXmlStreamWriter &xml, const QString &name, std::size_t tests, std::size_t failures,
                std::size_t errors)
{
    xml.writeStartElement(u"testsuite"_s);
    writeText(xml, u"name"_s, name);
    xml.writeAttribute(u"tests"_s, QString::number(tests));
    xml.writeAttribute(u"failures"_s, QString::number(failures));
    xml.writeAttribute(u"errors"_s, QString::number(errors));
}

void writeSuite(QXmlStreamWriter &xml, const FileReport &file, const std::set<Rule> &rules)
{
    std::set<Rule> failed;
    for (const Finding &finding : file.findings)
        failed.insert(finding.rule);
    startSuite(xml, file.file, rules.size(), failed.size(), 0);
    for (const Rule rule : rules)
        writeCase(xml, file, rule);
    xml.writeEndElement();
}

void writeUnusable(QXmlStreamWriter &xml, const UnusableFile &file)
{
    startSuite(xml, file.file, 1, 0, 1);
    xml.writeStartElement(u"testcase"_s);
    writeText(xml, u"classname"_s, file.file);
    xml.writeAttribute(u"name"_s, u"usable"_s);
    xml.writeEmptyElement(u"error"_s);
    writeText(xml, u"message"_s, file.reason);
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

FileReport reducedReport(const FileReport &report, const Arguments &arguments)
{
    const auto isReported = [&](const Finding &finding) {
        if (!arguments.rules.contains(finding.rule))
            return false;
        const auto allowance = arguments.allowances.find(finding.rule);
        return allowance == arguments.allowances.end() ||
               !isAllowed(allowance->second, countOf(report, finding.rule), report.entries);
    };
    FileReport reduced = report;
    reduced.findings.clear();
    std::copy_if(report.findings.begin(), report.findings.end(), std::back_inserter(reduced.findings),
                 isReported);
    return reduced;
}

QString statusLine(const FileReport &report)
{
    const auto count = [&](Rule rule) { return QString::number(countOf(report, rule)); };
    if (report.kind == FileKind::MessageTable)
        return u"%1: %2 messages, %3 new, %4 obsolete, %5 incomplete"_s.arg(
            report.file, QString::number(report.entries), count(Rule::New), count(Rule::Obsolete),
            count(Rule::Incomplete));
    const int finished = report.entries - countOf(report, Rule::Unfinished) - countOf(report, Rule::Obsolete);
    return u"%1: %2 strings, %3 finished, %4 unfinished, %5 obsolete, %6 with different placeholders, "
           "%7 with different accelerators, %8 with different blanks"_s.arg(
               report.file, QString::number(report.entries), QString::number(finished),
               count(Rule::Unfinished), count(Rule::Obsolete), count(Rule::Place), count(Rule::Accelerator),
               count(Rule::Blank));
}

QByteArray textReport(const Report &report)
{
    QString text;
    for (const FileReport &file : report.files) {
        for (const Finding &finding : file.findings)
            text += lineOf(file, finding) + u'\n';
    }
    return text.toUtf8();
}

QByteArray sarifReport(const Report &report)
{
    QJsonArray results;
    for (const FileReport &file : report.files) {
        for (const Finding &finding : file.findings)
            results.append(sarifResult(file, finding));
    }
    const QJsonObject run{{u"tool"_s, sarifTool()},
                          {u"columnKind"_s, u"utf16CodeUnits"_s},
                          {u"invocations"_s, QJsonArray{sarifInvocation(report)}},
                          {u"results"_s, results}};
    const QJsonObject log{
        {u"$schema"_s,
         u"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json"_s},
        {u"version"_s, u"2.1.0"_s},
        {u"runs"_s, QJsonArray{run}}};
    return QJsonDocument(log).toJson();
}

QByteArray junitReport(const Report &report, const std::set<Rule> &rules)
{
    QBuffer contents;
    contents.open(QIODevice::WriteOnly);
    QXmlStreamWriter xml(&contents);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"testsuites"_s);
    for (const FileReport &file : report.files)
        writeSuite(xml, file, rules);
    for (const UnusableFile &file : report.unusable)
        writeUnusable(xml, file);
    xml.writeEndDocument();
    return contents.data();
}

} // namespace TableCheck
