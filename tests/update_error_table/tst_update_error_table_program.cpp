#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/program_run.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The real program with its output in pipes.
class tst_update_error_table_program : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(
            writeBytes(m_folder->path(u"p.vcxproj"_s),
                       "<Project><PropertyGroup Label=\"Globals\"><RootNamespace>new_client</RootNamespace>"
                       "</PropertyGroup><ItemGroup><ClCompile Include=\"gr\xC3\xBC\xC3\x9F"
                       "e.cpp\"/><ClCompile Include=\"gone.cpp\"/></ItemGroup></Project>"));
        QVERIFY(writeBytes(m_folder->path(QString::fromUtf8("gr\xC3\xBC\xC3\x9F"
                                                            "e.cpp")),
                           "void f() { REPORT_ERROR(\"Tag\"); }\n"));
    }

    void writesProgressToStandardOutputAndSkippedFilesToStandardError()
    {
        const QString table = QString::fromUtf8("t\xC3\xA4"
                                                "ble.xml");
        run({u"-sync"_s, table, u"p.vcxproj"_s});

        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output, QString::fromUtf8("Scanning...\n"
                                                 "  gr\xC3\xBC\xC3\x9F"
                                                 "e.cpp\n"
                                                 "  gone.cpp\n"
                                                 "Parser error: Cannot open file\n"
                                                 "Found 1 keys (1 new, 0 existing, and 0 obsolete)\n"
                                                 "Saving message table \"t\xC3\xA4"
                                                 "ble.xml\"...\n"));
        QCOMPARE(m_run.errors,
                 QString::fromUtf8("Cannot open gone.cpp: the file does not exist (p.vcxproj, line 1)\n"
                                   "gr\xC3\xBC\xC3\x9F"
                                   "e.cpp:1: new message (client, f, Tag)\n"
                                   "1 source file could not be scanned and was skipped\n"));
        const QByteArray written = fileBytes(m_folder->path(table)).value_or("missing");
        QVERIFY2(written.contains("<process>client</process>"), written.constData());
    }

    void writesTheNameOfTheCopyOfPluralFormsToStandardError()
    {
        const QByteArray plural = "<TS><context><name>A</name><message numerus=\"yes\"><source>%n</source>"
                                  "<translation><numerusform>%n</numerusform></translation></message>"
                                  "</context></TS>";
        QVERIFY(writeBytes(m_folder->path(u"a.ts"_s), plural));
        QVERIFY(writeBytes(m_folder->path(u"t.xml"_s), "<messageTable/>"));
        run({u"-tr"_s, u"t.xml"_s, u"a.ts"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.errors,
                 u"a.ts:1: <message numerus=\"yes\"> is not kept\n"
                 "a.ts:1: <numerusform> is not kept\n"
                 "Parts of the file were dropped; the previous file is kept as a.ts.before\n"_s);
        QVERIFY(!m_run.output.contains(u"before"_s));
        QCOMPARE(fileBytes(m_folder->path(u"a.ts.before"_s)), plural);
    }

    void writesNoProgressLineToAPipe()
    {
        run({u"-sync"_s, u"t.xml"_s, u"p.vcxproj"_s});
        QVERIFY(!m_run.output.contains(u"Scanned"_s));
        QVERIFY(!m_run.output.contains(u'\r'));
    }

    void exitCodeIsOneIfAnOperationFails()
    {
        run({u"-sync"_s, u"t.xml"_s, u"no.vcxproj"_s});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output, u"Could not find Visual Studio project file \"no.vcxproj\"\n"_s);
    }

    void wrongArgumentsWriteTheUsageToStandardErrorAndExitWithTwo()
    {
        run({u"-sync"_s});
        QCOMPARE(m_run.exitCode, 2);
        QCOMPARE(m_run.output, QString());
        QVERIFY(m_run.errors.startsWith(u"Usage: UpdateErrorTable [options]\n\noptions:\n"_s));
    }

    void helpWritesTheUsageToStandardOutput()
    {
        run({u"-h"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output,
                 u"Usage: UpdateErrorTable [options]\n"
                 "\n"
                 "options:\n"
                 "  -sync <error_table> <vcproj>   synchronize error table with source code\n"
                 "  -tr <error_table> <ts>         synchronize translation table with error table\n"
                 "  -h                             show this message and exit\n"_s);
        QCOMPARE(m_run.errors, QString());
    }

private:
    void run(const QStringList &arguments)
    {
        m_run = runToEnd(inCheckout(UPDATE_ERROR_TABLE), arguments, m_folder->path());
    }

    std::unique_ptr<TestFolder> m_folder;
    ProgramRun m_run;
};

NVX_GUILESS_TEST(tst_update_error_table_program)

#include "tst_update_error_table_program.moc"
