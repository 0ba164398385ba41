#include "message_table_check/report.h"
#include "support/test_class.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

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

/// True for a result or a notification with a message, a known level, and a location whose file is a URI
/// reference.
bool isSarifEntry(const QJsonValue &entry)
{
    static const QStringList levels{u"none"_s, u"note"_s, u"warning"_s, u"error"_s};
    static const QRegularExpression uri(
        u"^(?:[A-Za-z][A-Za-z0-9+.-]*:)?(?:%[0-9A-Fa-f]{2}|[A-Za-z0-9._~!$&'()*+,;=@/-])+$"_s);
    return !entry[u"message"][u"text"].toString().isEmpty() && levels.contains(entry[u"level"].toString()) &&
           uri.match(entry[u"locations"][0][u"physicalLocation"][u"artifactLocation"][u"uri"].toString())
               .hasMatch();
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
        QCOMPARE(TableCheck::statusLine(report), u"a.ts: 10 strings, 6 finished, 3 unfinished, 1 obsolete, 2 "
                                                 u"with different placeholders, 0 with "
                                                 "different accelerators, 4 with different blanks"_s);
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

    void sarifKeepsToTheRulesOfItsSchema()
    {
        Report report = wholeReport();
        report.files.front().file = QString::fromUtf8("a b/%41:\xC3\xA4.xml");
        const QJsonDocument log = QJsonDocument::fromJson(TableCheck::sarifReport(report));
        QVERIFY(log[u"$schema"].toString().endsWith(u"sarif-schema-2.1.0.json"_s));
        QVERIFY(log[u"runs"].isArray());
        const QJsonValue run = log[u"runs"][0];
        QVERIFY(run[u"invocations"][0][u"executionSuccessful"].isBool());
        QCOMPARE(run[u"columnKind"].toString(), u"utf16CodeUnits"_s);
        const QJsonArray rules = run[u"tool"][u"driver"][u"rules"].toArray();
        QSet<QString> ids;
        for (const QJsonValue &rule : rules) {
            ids.insert(rule[u"id"].toString());
            QVERIFY(!rule[u"shortDescription"][u"text"].toString().isEmpty());
        }
        QCOMPARE(ids.size(), rules.size());
        const QJsonArray results = run[u"results"].toArray();
        for (const QJsonValue &result : results) {
            QVERIFY(isSarifEntry(result));
            QCOMPARE(rules.at(result[u"ruleIndex"].toInt(-1))[u"id"], result[u"ruleId"]);
            QVERIFY(result[u"locations"][0][u"physicalLocation"][u"region"][u"startLine"].toInt() >= 1);
        }
        const QJsonArray notifications = run[u"invocations"][0][u"toolExecutionNotifications"].toArray();
        QVERIFY(std::all_of(notifications.begin(), notifications.end(), isSarifEntry));
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

    void junitCanNameAnyFile()
    {
        Report report = wholeReport();
        report.files.front().file = u"a\u0007\uFFFF.xml"_s;
        report.unusable.front().file = u"\u0001.ts"_s;
        const QByteArray junit = TableCheck::junitReport(report, {Rule::New});
        QCOMPARE(elementsOf(junit).size(), 7);
        QVERIFY2(junit.contains("a\xEF\xBF\xBD\xEF\xBF\xBD.xml:3: (p, c, A)"), junit.constData());
    }

    void junitCountsWhatItHas()
    {
        const QByteArray junit =
            TableCheck::junitReport(wholeReport(), {Rule::New, Rule::Obsolete, Rule::Incomplete});
        QXmlStreamReader xml(junit);
        QVERIFY(xml.readNextStartElement());
        while (xml.readNextStartElement()) { // a suite
            QMap<QString, int> counts{{u"tests"_s, 0}, {u"failures"_s, 0}, {u"errors"_s, 0}};
            const QXmlStreamAttributes suite = xml.attributes();
            QVERIFY(!suite.value("name"_L1).isEmpty());
            QStringList names;
            while (xml.readNextStartElement()) { // a case
                QCOMPARE(xml.name(), u"testcase");
                QVERIFY(!xml.attributes().value("classname"_L1).isEmpty());
                names.append(xml.attributes().value("name"_L1).toString());
                ++counts[u"tests"_s];
                while (xml.readNextStartElement()) {
                    ++counts[xml.name().toString() + u's'];
                    QVERIFY(xml.attributes().hasAttribute("message"_L1));
                    xml.skipCurrentElement();
                }
            }
            QCOMPARE(names.removeDuplicates(), 0);
            QCOMPARE(counts.size(), 3); // nothing but failures and errors
            for (auto count = counts.begin(); count != counts.end(); ++count)
                QCOMPARE(suite.value(count.key()).toInt(), count.value());
        }
        QVERIFY(!xml.hasError());
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
