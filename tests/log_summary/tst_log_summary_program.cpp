#include "log_of_a_run.h"
#include "log_summary/log_summary.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/program_run.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QJsonDocument>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The real program with its output in pipes.
class tst_log_summary_program : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        writeFile(m_folder->path(u"reports/GOOD.log"_s), goodInstall());
        writeFile(m_folder->path(u"reports/GOOD-2.log"_s), goodRemoval().replace("\n", "\r\n"));
        writeFile(m_folder->path(u"bad/FAILED.log"_s), goodInstall().replace("   0 Create", "   5 Create"));
        writeFile(m_folder->path(u"bad/WAITING.log"_s), startOfRun("-i"));
        writeFile(m_folder->path(u"bad/EMPTY.log"_s));
        writeFile(m_folder->path(u"bad/OTHER.txt"_s), "words\n");
    }

    void logsOfAFolderAreSummedUpInTheOrderOfTheirNames()
    {
        run({u"reports"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output, u"ok          remove     en-US  2026-11-21 15:09:47  GOOD-2\n"
                               "ok          install    en-US  2026-11-21 15:09:47  GOOD\n"_s);
        QCOMPARE(m_run.errors, QString());
    }

    void theExitStatusIsThatOfTheWorstMachine_data()
    {
        QTest::addColumn<QStringList>("logs");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("good") << QStringList{u"reports/GOOD.log"_s} << 0;
        QTest::newRow("failed") << QStringList{u"bad/FAILED.log"_s, u"reports/GOOD.log"_s} << 1;
        QTest::newRow("waiting") << QStringList{u"bad/WAITING.log"_s, u"bad/FAILED.log"_s} << 2;
        QTest::newRow("empty") << QStringList{u"bad/EMPTY.log"_s, u"bad/WAITING.log"_s} << 3;
        QTest::newRow("other program") << QStringList{u"bad/OTHER.txt"_s} << 3;
        QTest::newRow("missing") << QStringList{u"no.log"_s, u"reports/GOOD.log"_s} << 3;
        QTest::newRow("pattern") << QStringList{u"reports/GOOD*.log"_s} << 0;
        QTest::newRow("pattern without a log") << QStringList{u"reports/BAD?.log"_s} << 3;
        QTest::newRow("folder without a log") << QStringList{u"."_s} << 3;
    }

    void theExitStatusIsThatOfTheWorstMachine()
    {
        QFETCH(const QStringList, logs);
        run(logs);
        QTEST(m_run.exitCode, "exitCode");
        QVERIFY2(m_run.output.contains(u'\n'), "each argument has a line");
    }

    void aLogThatCannotBeReadSaysWhy()
    {
        run({u"bad/EMPTY.log"_s, u"bad/OTHER.txt"_s, u"no.log"_s, u"reports/A*.log"_s, u"."_s});
        QStringList reasons;
        const QStringList lines = m_run.output.split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines)
            reasons.append(line.section(u"  "_s, -1));
        QCOMPARE(reasons, QStringList({u"the log is empty"_s, u"no run of NVXConfig begins in this file"_s,
                                       u"the file does not exist"_s, u"there is no such log"_s,
                                       u"there is no log in this folder"_s}));
    }

    void aFileOverTheLimitIsRefusedAtOnce()
    {
        QFile file(m_folder->path(u"LARGE.log"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(LogSummary::maxLogBytes + 1));
        file.close();
        run({u"LARGE.log"_s});
        QCOMPARE(m_run.exitCode, 3);
        QVERIFY2(m_run.output.endsWith(u"the file is larger than 2048 MiB\n"_s), m_run.report());
    }

    void detailsNameTheFailedSteps()
    {
        run({u"--details"_s, u"--machine"_s, u"PC-1"_s, u"bad/FAILED.log"_s});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output,
                 u"failed      install    en-US  2026-11-21 15:09:47  PC-1  1 failure: Create shortcut "
                 "C:\\users\\Public\\Desktop\\Velmora NVX 2017.lnk Success\n"
                 "    5  Create shortcut C:\\users\\Public\\Desktop\\Velmora NVX 2017.lnk Success\n"_s);
    }

    void jsonIsWrittenIntoAFile()
    {
        run({u"--json"_s, u"--output"_s, u"out.json"_s, u"reports"_s, u"bad/FAILED.log"_s});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output, QString());
        const auto report = QJsonDocument::fromJson(readFile(m_folder->path(u"out.json"_s)));
        QCOMPARE(report[u"machines"][2][u"verdict"].toString(), u"failed"_s);
        QCOMPARE(report[u"machines"][2][u"failedSteps"][0][u"number"].toInt(), 5);
    }

    void aReportThatCannotBeWrittenExitsWithThree()
    {
        run({u"-o"_s, u"missing/out.txt"_s, u"reports"_s});
        QCOMPARE(m_run.exitCode, 3);
        QCOMPARE(m_run.errors, u"missing/out.txt: could not be written\n"_s);
    }

    void withoutArgumentsTheHelpIsShown()
    {
        run({});
        QCOMPARE(m_run.exitCode, 2);
        QVERIFY(m_run.output.startsWith(u"Usage: "_s));
        const QString help = m_run.output;
        run({u"--help"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output, help);
    }

    void theVersionIsThatOfTheProduct()
    {
        run({u"--version"_s});
        QCOMPARE(m_run.exitCode, 0);
        QVERIFY2(m_run.output.startsWith(u"NVXLogSummary 17."_s), m_run.report());
    }

    void wrongArgumentsExitWithTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");
        QTest::newRow("unknown option") << QStringList{u"--xml"_s} << u"Unknown option 'xml'."_s;
        QTest::newRow("no log") << QStringList{u"--json"_s} << u"No log is given."_s;
        QTest::newRow("two formats") << QStringList{u"--json"_s, u"--details"_s, u"a"_s}
                                     << u"--details and --json exclude each other."_s;
        QTest::newRow("no name") << QStringList{u"--machine"_s, QString(), u"a"_s}
                                 << u"The name of the machine is empty."_s;
        QTest::newRow("no report") << QStringList{u"--output"_s, QString(), u"a"_s}
                                   << u"The name of the report is empty."_s;
        QTest::newRow("one name for two logs")
            << QStringList{u"--machine"_s, u"PC"_s, u"a"_s, u"b"_s} << u"--machine is for a single log."_s;
    }

    void wrongArgumentsExitWithTwo()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, error);
        run(arguments);
        QCOMPARE(m_run.exitCode, 2);
        QCOMPARE(m_run.output, QString());
        QCOMPARE(m_run.errors, error + u"\nNVXLogSummary --help explains the options.\n"_s);
    }

private:
    void run(const QStringList &arguments)
    {
        m_run = runToEnd(inCheckout(LOG_SUMMARY), arguments, m_folder->path());
    }

    std::unique_ptr<TestFolder> m_folder;
    ProgramRun m_run;
};

NVX_GUILESS_TEST(tst_log_summary_program)

#include "tst_log_summary_program.moc"
