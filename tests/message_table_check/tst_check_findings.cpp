#include "message_table_check/findings.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;
using Nvx::Util::Result;
using TableCheck::FileReport;

namespace {

Result<FileReport> check(QByteArray document)
{
    QBuffer device(&document);
    if (!device.open(QIODevice::ReadOnly))
        qFatal("cannot open a buffer");
    return TableCheck::checkDocument(device);
}

/// The findings as "LINE: TEXT [RULE]".
QStringList shown(const FileReport &report)
{
    QStringList lines;
    for (const TableCheck::Finding &finding : report.findings)
        lines.append(u"%1: %2 [%3]"_s.arg(QString::number(finding.line), finding.text,
                                          Checks::ruleName(finding.rule)));
    return lines;
}

QByteArray message(const QByteArray &severity, const QByteArray &tag, const QByteArray &texts)
{
    return "<message severity=\"" + severity + "\"><key><process>p</process><context>A::run</context><tag>" +
           tag + "</tag></key>" + texts + "</message>\n";
}

QByteArray string(const QByteArray &translation)
{
    return "<message><source>Save %1</source>" + translation + "</message>\n";
}

} // namespace

class tst_check_findings : public QObject
{
    Q_OBJECT

private slots:
    void messagesAreReportedWithTheirLines()
    {
        const Result<FileReport> report =
            check("<messageTable>\n" + message("Warning", "Good", "<text>t</text>") +
                  message("Warning", "New", "<text/><state>New</state>") +
                  message("Critical", "Gone", "<state>Obsolete</state>") +
                  message("Status", "Good", "<text>t </text>") + "</messageTable>");
        QVERIFY(report);
        QCOMPARE(shown(*report),
                 (QStringList{u"3: (p, A::run, New): not reviewed yet [new]"_s,
                              u"3: (p, A::run, New): Text: missing [incomplete]"_s,
                              u"4: (p, A::run, Gone): no longer found in the sources [obsolete]"_s,
                              u"5: (p, A::run, Good): the key is in line 2 already [duplicate]"_s,
                              u"5: (p, A::run, Good): Text: ends with a blank [blank]"_s}));
        QCOMPARE(report->kind, TableCheck::FileKind::MessageTable);
        QCOMPARE(report->entries, 4);
    }

    void whatIsLostOnSavingIsReportedWithItsLine()
    {
        const Result<FileReport> report =
            check("<messageTable>\n<!-- a -->\n" +
                  message("Warning", "A", "<text>t</text>\n<title>x</title>\n<hint/>") +
                  "<other/>\n</messageTable>");
        QVERIFY(report);
        QStringList lines;
        for (const TableCheck::Finding &finding : report->findings) {
            QCOMPARE(finding.rule, Rule::Unsaved);
            lines.append(QString::number(finding.line) + u' ' + finding.text.section(u' ', 0, 0));
        }
        QCOMPARE(lines, (QStringList{u"2 <!--"_s, u"4 <title>"_s, u"5 <hint>"_s}));
    }

    void messageWithSeveralFindingsOfARuleIsCountedOnce()
    {
        const Result<FileReport> report =
            check("<messageTable>" + message("Critical", "A", "<text/>") + "</messageTable>");
        QVERIFY(report);
        QCOMPARE(report->findings.size(), std::size_t(3));
        QCOMPARE(report->entriesWith, (std::map<Rule, int>{{Rule::Incomplete, 1}}));
    }

    void stringsAreReportedWithTheirLines()
    {
        const Result<FileReport> report =
            check("<TS>\n<context>\n<name>A::run</name>\n" +
                  string("<translation type=\"\">Sichere %1</translation>") +
                  string("<translation type=\"unfinished\">Save %1</translation>") +
                  string("<translation type=\"obsolete\">x</translation>") +
                  string("<translation type=\"vanished\">x</translation>") +
                  string("<translation> &amp;Sichere</translation>") + string("<translation/>") +
                  "</context></TS>");
        QVERIFY(report);
        const QString name = u"A::run, \"Save %1\": "_s;
        QCOMPARE(shown(*report),
                 (QStringList{u"5: %1not translated yet [unfinished]"_s.arg(name),
                              u"6: %1no longer used [obsolete]"_s.arg(name),
                              u"7: %1no longer used [obsolete]"_s.arg(name),
                              u"8: "_s + name + u"%1 is missing [place]"_s,
                              u"8: %1the source has no accelerator [accelerator]"_s.arg(name),
                              u"8: %1begins with different blanks than the source [blank]"_s.arg(name),
                              u"9: %1the translation is empty [unfinished]"_s.arg(name)}));
        QCOMPARE(report->kind, TableCheck::FileKind::TranslationFile);
        QCOMPARE(report->entries, 6);
    }

    void everyPluralFormIsChecked()
    {
        const Result<FileReport> report =
            check("<TS><context><name>A</name><message numerus=\"yes\"><source>%n of %1</source><translation>"
                  "<numerusform>one of %1</numerusform><numerusform>%n</numerusform></translation></message>"
                  "</context></TS>");
        QVERIFY(report);
        QCOMPARE(shown(*report), QStringList(u"1: A, \"%n of %1\": %1 is missing [place]"_s));
    }

    void lengthVariantsOfPluralFormsAreTranslations()
    {
        const Result<FileReport> report =
            check("<TS><context><name>A</name><message numerus=\"yes\"><source>%n of %1</source><translation>"
                  "<numerusform><lengthvariant>%n from %1</lengthvariant><lengthvariant>%n/%1</lengthvariant>"
                  "</numerusform></translation></message></context></TS>");
        QVERIFY(report);
        QCOMPARE(shown(*report), QStringList());
    }

    void unknownElementEndsNeitherItsContextNorItsMessage()
    {
        const Result<FileReport> report =
            check("<TS><context><note>text</note><name>A</name><message><extracomment>text</extracomment>"
                  "<source>s</source><translation type=\"unfinished\"/></message></context></TS>");
        QVERIFY(report);
        QCOMPARE(shown(*report), QStringList(u"1: A, \"s\": not translated yet [unfinished]"_s));
    }

    void contextIsShownOnOneLineWithoutControlCharacters()
    {
        const Result<FileReport> report =
            check("<TS><context><name><byte value=\"x1b\"/>B\nC</name><message><source>s</source>"
                  "<translation type=\"unfinished\"/></message></context></TS>");
        QVERIFY(report);
        QCOMPARE(report->findings.front().text, u"\ufffdB C, \"s\": not translated yet"_s);
    }

    void stringsOfAContextThatOccursTwiceAreAllChecked()
    {
        const QByteArray context =
            "<context>" + string("<translation type=\"unfinished\"/>") + "<name>A</name></context>";
        const Result<FileReport> report = check("<TS>" + context + context + "</TS>");
        QVERIFY(report);
        QCOMPARE(report->entries, 2);
        QVERIFY(report->findings.front().text.startsWith(u"A, "_s));
    }

    void findingIsOneLineWithoutControlCharacters()
    {
        const Result<FileReport> report =
            check("<TS><context><name>A</name><message><source>a\nb<byte value=\"x1b\"/>\xF0\x9F\x98\x80"
                  "</source><translation type=\"unfinished\"/></message></context></TS>");
        QVERIFY(report);
        QCOMPARE(report->findings.front().text, u"A, \"a b\ufffd\U0001F600\": not translated yet"_s);
    }

    void longSourceIsShortened()
    {
        const Result<FileReport> report =
            check("<TS><context><name>A</name><message><source>" + QByteArray(100, 'a') +
                  "</source><translation type=\"unfinished\"/></message></context></TS>");
        QVERIFY(report);
        QCOMPARE(report->findings.front().text, u"A, \"%1...\": not translated yet"_s.arg(QString(57, u'a')));
    }

    void tableWithoutMessagesIsClean()
    {
        const Result<FileReport> report = check("<messageTable/>");
        QVERIFY(report);
        QCOMPARE(report->entries, 0);
        QVERIFY(report->findings.empty());
    }

    void unusableDocumentIsRefused_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("error");
        QTest::newRow("another root")
            << QByteArray("<html/>") << u"neither a message table nor a translation file"_s;
        QTest::newRow("not well formed") << QByteArray("<messageTable>\n<message severity=\"Status\">\n</x>")
                                         << u"line 3: Opening and ending tag mismatch."_s;
        QTest::newRow("conflict marks")
            << QByteArray("<messageTable>\n<<<<<<< HEAD\n") << u"line 2: Unexpected "_s;
        QTest::newRow("empty file") << QByteArray() << u"line 1: Premature end of document."_s;
        const QByteArray entity = "<!DOCTYPE a [<!ENTITY e \"" + QByteArray(4000, 'A') + "\">]>\n";
        const QByteArray references = QByteArray("&e;").repeated(50'000);
        QTest::newRow("table with a large entity, many times")
            << entity + "<messageTable><message severity=\"Status\">\n<text>" + references +
                   "</text></message></messageTable>"
            << u"line 3: "_s;
        QTest::newRow("translation file with a large entity, many times")
            << entity + "<TS><context><message>\n<source>" + references + "</source></message></context></TS>"
            << u"line 3: "_s;
        QByteArray attributes;
        for (int number = 0; number < 20'000; ++number)
            attributes += " a" + QByteArray::number(number) + "=\"\"";
        QTest::newRow("too many attributes")
            << "<messageTable>\n<message" + attributes + "/></messageTable>" << u"line 2: "_s;
    }

    void unusableDocumentIsRefused()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const QString, error);
        const Result<FileReport> report = check(document);
        QVERIFY(!report);
        QVERIFY2(report.error().startsWith(error), qPrintable(report.error()));
    }

    void reportNamesTheFile()
    {
        const TestFolder folder;
        const QString file = folder.path(u"errors.xml"_s);
        QVERIFY(writeBytes(file, "<messageTable/>"));
        const Result<FileReport> report = TableCheck::checkFile(file);
        QVERIFY(report);
        QCOMPARE(report->file, file);
        QVERIFY(!TableCheck::checkFile(folder.path(u"missing.xml"_s)));
    }
};

NVX_GUILESS_TEST(tst_check_findings)
#include "tst_check_findings.moc"
