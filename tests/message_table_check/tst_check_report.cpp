#include "message_table_check/report.h"
#include "support/test_class.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;
using TableCheck::FileReport;
using TableCheck::Report;

namespace {

/// A table of 20 messages with two new ones and an incomplete one.
FileReport tableReport()
{
    FileReport report;
    report.file = u"data/err ors.xml"_s;
    report.entries = 20;
    report.findings = {{3, Rule::New, u"(p, c, A): not reviewed yet"_s},
                       {9, Rule::New, u"(p, c, B): not reviewed yet"_s},
                       {9, Rule::Incomplete, u"(p, c, B): Text: missing"_s}};
    report.entriesWith = {{Rule::New, 2}, {Rule::Incomplete, 1}};
    return report;
}

Report wholeReport()
{
    return {{tableReport()}, {{u"a.ts"_s, u"line 2: Premature end of document."_s}}};
}

QStringList textLines(const FileReport &report)
{
    return QString::fromUtf8(TableCheck::textReport({{report}, {}})).split(u'\n', Qt::SkipEmptyParts);
}

/// The elements of a document as "NAME ATTRIBUTE=VALUE ...", with two blanks for each level.
QStringList elementsOf(const QByteArray &document)
{
    QStringList elements;
    int depth = 0;
    QXmlStreamReader xml(document);
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token != QXmlStreamReader::StartElement)
            continue;
        QString element = QString(2 * depth, u' ').append(xml.name());
        const QXmlStreamAttributes attributes = xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            element += u" %1=%2"_s.arg(attribute.name(), attribute.value());
        elements.append(element);
        ++depth;
    }
    return xml.hasError() ? QStringList(xml.errorString()) : elements;
}

} // namespace

class tst_check_report : public QObject
{
    Q_OBJECT

private slots:
    void textHasALineForEachFinding()
    {
        QCOMPARE(textLines(tableReport()),
                 (QStringList{u"data/err ors.xml:3: (p, c, A): not reviewed yet [new]"_s,
                              u"data/err ors.xml:9: (p, c, B): not reviewed yet [new]"_s,
                              u"data/err ors.xml:9: (p, c, B): Text: missing [incomplete]"_s}));
    }

    void findingsOfOtherRulesAreLeftOut()
    {
        TableCheck::Arguments arguments;
        arguments.rules = {Rule::Incomplete};
        const FileReport reduced = TableCheck::reducedReport(tableReport(), arguments);
        QCOMPARE(textLines(reduced),
                 QStringList(u"data/err ors.xml:9: (p, c, B): Text: missing [incomplete]"_s));
    }

    void findingsWithinTheAllowanceAreLeftOut_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<bool>("isPercentage");
        QTest::addColumn<int>("reported");
        QTest::newRow("fewer are allowed") << 1 << false << 2;
        QTest::newRow("as many are allowed") << 2 << false << 0;
        QTest::newRow("a smaller percentage is allowed") << 9 << true << 2;
        QTest::newRow("exactly the percentage is allowed") << 10 << true << 0;
    }

    void findingsWithinTheAllowanceAreLeftOut()
    {
        QFETCH(const int, limit);
        QFETCH(const bool, isPercentage);
        TableCheck::Arguments arguments;
        arguments.rules = {Rule::New};
        arguments.allowances = {{Rule::New, {.number = limit, .isPercentage = isPercentage}}};
        QTEST(int(TableCheck::reducedReport(tableReport(), arguments).findings.size()), "reported");
    }

    void statusCountsMessages()
    {
        QCOMPARE(TableCheck::statusLine(tableReport()),
                 u"data/err ors.xml: 20 messages, 2 new, 0 obsolete, 1 incomplete"_s);
    }

    void statusCountsStrings()
    {
        FileReport report;
        report.file = u"a.ts"_s;
        report.kind = TableCheck::FileKind::TranslationFile;
        report.entries = 10;
        report.entriesWith = {{Rule::Unfinished, 3}, {Rule::Obsolete, 1}, {Rule::Place, 2}, {Rule::Blank, 4}};
        QCOMPARE(TableCheck::statusLine(report),
                 u"a.ts: 10 strings, 6 finished, 3 unfinished, 1 obsolete, 2 with other places, 0 with other "
                 "accelerators, 4 with other blanks"_s);
    }

    void sarifHasTheRulesAndTheResults()
    {
        const QJsonObject log = QJsonDocument::fromJson(TableCheck::sarifReport(wholeReport())).object();
        QCOMPARE(log[u"version"].toString(), u"2.1.0"_s);
        const QJsonObject run = log[u"runs"].toArray().at(0).toObject();
        const QJsonObject driver = run[u"tool"][u"driver"].toObject();
        QCOMPARE(driver[u"name"].toString(), u"MessageTableCheck"_s);
        QCOMPARE(driver[u"rules"].toArray().size(), qsizetype(Checks::allRules().size()));
        QCOMPARE(driver[u"rules"][0][u"id"].toString(), u"new"_s);

        QCOMPARE(run[u"results"].toArray().size(), 3);
        const QJsonObject result = run[u"results"][2].toObject();
        QCOMPARE(result[u"ruleId"].toString(), u"incomplete"_s);
        QCOMPARE(result[u"level"].toString(), u"error"_s);
        QCOMPARE(result[u"message"][u"text"].toString(), u"(p, c, B): Text: missing"_s);
        const QJsonValue place = result[u"locations"][0][u"physicalLocation"];
        QCOMPARE(place[u"artifactLocation"][u"uri"].toString(), u"data/err%20ors.xml"_s);
        QCOMPARE(place[u"region"][u"startLine"].toInt(), 9);
    }

    void sarifReportsAnUnusableFile()
    {
        const QJsonDocument log = QJsonDocument::fromJson(TableCheck::sarifReport(wholeReport()));
        const QJsonValue invocation = log[u"runs"][0][u"invocations"][0];
        QCOMPARE(invocation[u"executionSuccessful"].toBool(true), false);
        const QJsonValue notification = invocation[u"toolExecutionNotifications"][0];
        QCOMPARE(notification[u"message"][u"text"].toString(), u"line 2: Premature end of document."_s);
        QCOMPARE(notification[u"locations"][0][u"physicalLocation"][u"artifactLocation"][u"uri"].toString(),
                 u"a.ts"_s);
    }

    void sarifOfACleanRunHasNoResults()
    {
        const QJsonDocument log = QJsonDocument::fromJson(TableCheck::sarifReport({}));
        QVERIFY(log[u"runs"][0][u"results"].isArray());
        QCOMPARE(log[u"runs"][0][u"results"].toArray().size(), 0);
        QVERIFY(log[u"runs"][0][u"invocations"][0][u"executionSuccessful"].toBool());
    }

    void junitHasATestCaseForEachRule()
    {
        const QByteArray report =
            TableCheck::junitReport(wholeReport(), {Rule::New, Rule::Obsolete, Rule::Incomplete});
        QCOMPARE(
            elementsOf(report),
            (QStringList{u"testsuites"_s, u"  testsuite name=data/err ors.xml tests=3 failures=2 errors=0"_s,
                         u"    testcase classname=data/err ors.xml name=new"_s,
                         u"      failure message=2: a message that has not been reviewed"_s,
                         u"    testcase classname=data/err ors.xml name=obsolete"_s,
                         u"    testcase classname=data/err ors.xml name=incomplete"_s,
                         u"      failure message=1: a message without a field that its severity needs"_s,
                         u"  testsuite name=a.ts tests=1 failures=0 errors=1"_s,
                         u"    testcase classname=a.ts name=usable"_s,
                         u"      error message=line 2: Premature end of document."_s}));
        QVERIFY(report.contains("data/err ors.xml:3: (p, c, A): not reviewed yet [new]\n"
                                "data/err ors.xml:9: (p, c, B): not reviewed yet [new]\n"));
    }
};

NVX_GUILESS_TEST(tst_check_report)
#include "tst_check_report.moc"
