#include "log_of_a_run.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using namespace LogSummary;

namespace {

QByteArray withBegin()
{
    return startOfRun("-I -S -Len-US") + languageSetUp("Install", "en-US") + programCheck();
}

} // namespace

class tst_log_run : public QObject
{
    Q_OBJECT

private slots:
    void aGoodRunIsOk_data()
    {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("install") << goodInstall() << RunMode::Install;
        QTest::newRow("removal") << goodRemoval() << RunMode::Remove;
        QTest::newRow("stop of the services")
            << startOfRun("-ST -S") + languageSetUp("Found ", "en-US") + programCheck() +
                   stepLine("Stopping Services") + stepLine("uninstallServer ") +
                   removal("C:\\NVX\\HPCAnalyze", 2)
            << RunMode::StopServices;
        QTest::newRow("translation") << startOfRun("-T") + languageSetUp(" Success", "en-US") +
                                            programCheck("off") +
                                            stepLine("Localization script finishes cool")
                                     << RunMode::Translate;
        QTest::newRow("wizard") << startOfRun("") + languageSetUp("Install", "en-US") + programCheck("off") +
                                       logLine(2, "Installation Sprache de-DE") + programCheck("off") +
                                       firstSteps() + lastSteps() + stepLine("Program exiting")
                                << RunMode::Install;
        QTest::newRow("end of another program's log before it")
            << "some words\n" + goodInstall() << RunMode::Install;
        QTest::newRow("empty line of a next run") << goodInstall() + stepLine("") << RunMode::Install;
    }

    void aGoodRunIsOk()
    {
        QFETCH(const QByteArray, log);
        const Run run = lastRunOf(log);
        QCOMPARE(run.reason, QString());
        QCOMPARE(run.failedStepCount, 0);
        QCOMPARE(run.verdict, Verdict::Ok);
        QTEST(run.mode, "mode");
        QCOMPARE(run.started, u"2026-11-21T15:09:47"_s);
        QCOMPARE(run.ended, u"2026-11-21T15:09:47"_s);
    }

    void theLanguageIsTheLastOneSetUp()
    {
        QCOMPARE(lastRunOf(goodInstall()).language, u"en-US"_s);
        const Run changed = lastRunOf(startOfRun("") + languageSetUp("Install", "en-US") +
                                      programCheck("off") + logLine(2, "Installation Sprache de-DE"));
        QCOMPARE(changed.language, u"de-DE"_s);
        QCOMPARE(lastRunOf(startOfRun("-L") + logLine(2, "Install Language ")).language, QString());
    }

    void aRunWithoutAnEndSaysWhereItStopped_data()
    {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<Verdict>("verdict");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *name, const QByteArray &log, Verdict verdict, const char *reason) {
            QTest::newRow(name) << log << verdict << QString::fromLatin1(reason);
        };
        const auto incomplete = Verdict::Incomplete;
        const auto waiting = Verdict::Waiting;
        const QByteArray banner = stepLine(QByteArray(77, '='));
        row("line of \"=\" only", banner, incomplete, "ends at its start");
        row("unknown option", startOfRun("-i"), waiting, "an option is unknown");
        row("language set-up", startOfRun("-I") + languageSetUp("Install", "de-DE"), waiting,
            "a CAD system is running");
        row("without a language", startOfRun("-I -L") + logLine(2, "Install Language "), waiting,
            "a CAD system is running");
        row("removal in the language set-up",
            startOfRun("-I") + logLine(2, "Install Language de-DE") +
                stepLine("Command:cmd.exe /C C:\\a.bat "),
            incomplete, "ends during the command cmd.exe /C C:\\a.bat");
        row("question about the product",
            startOfRun("-I") + languageSetUp("Install", "de-DE") + programCheck("off"), waiting,
            "a program of the product is running");
        row("after the programs are ended", withBegin(), incomplete,
            "ends after the line CheckForRunningOstrade: silent=on terminate=off");
        row("wizard",
            startOfRun("") + languageSetUp("Install", "de-DE") + programCheck("off") + stepLine("Searching") +
                stepLine("Finished"),
            incomplete, "the wizard is open, or was closed before the installation");
        row("server", withBegin() + firstSteps(), waiting,
            "the server is missing, or has not registered its service");
        row("command",
            withBegin() + firstSteps() + stepLine("Command:C:\\NVX\\x.exe -i") + stepLine("WorkDir:C:\\NVX"),
            incomplete, "ends during the command C:\\NVX\\x.exe -i");
        row("cut in the last line", goodInstall().chopped(lastSteps().size()) + "Sat Nov 2", waiting,
            "the server is missing, or has not registered its service");
        row("materials",
            goodInstall().chopped(stepLine("The installation or update is complete. Click "
                                           "finish to continue.")
                                      .size()),
            incomplete,
            "ends after the line Copy: C:\\NVX\\matprop.mdb to: C:\\ProgramData\\Velmora\\NVX "
            "2017\\matprop.nvxmdb");
        row("old files of a removal", goodRemoval().chopped(stepLine("Remove: Report .pyc files").size()),
            incomplete, "ends after the line Remove: C:\\ProgramData\\Velmora\\NVX 2017*.dat");
    }

    void aRunWithoutAnEndSaysWhereItStopped()
    {
        QFETCH(const QByteArray, log);
        const Run run = lastRunOf(log);
        QTEST(run.verdict, "verdict");
        QTEST(run.reason, "reason");
    }

    void aFailureIsReported_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<qint64>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &lines, qint64 number, const char *text) {
            QTest::newRow(name) << lines << number << QString::fromLatin1(text);
        };
        row("exit code", program("a.exe", 2, "b"), 2, "exit code 2");
        row("exit code that is also a level", program("a.exe", 1, "b"), 1, "exit code 1");
        row("time-out", program("a.exe", -1, "b"), -1, "the program did not end in time");
        row("not started", program("a.exe", -2, "b"), -2, "the program could not be started");
        row("missing library", program("a.exe", -1073741515, "b"), -1073741515,
            "exit code -1073741515 (0xC0000135)");
        row("level 1", logLine(1, "Unable to create C:\\a"), 1, "Unable to create C:\\a");
        row("shortcut", logLine(-2147024891, "Create shortcut C:\\a.lnk Failed"), -2147024891,
            "Create shortcut C:\\a.lnk Failed");
        row("error code 2 of a file", logLine(2, "Open failed:Access is denied."), 2,
            "Open failed:Access is denied.");
        row("removal without access", removal("C:\\a", 5), 5, "exit code 5");
        row("removal that did not end", removal("C:\\a", -1), -1, "the program did not end in time");
        row("process that stays", stepLine("NVXServer was not terminated"), 0,
            "NVXServer was not terminated");
        row("service that stays", stepLine("uninstallServer - could not uninstall service"), 0,
            "uninstallServer - could not uninstall service");
    }

    void aFailureIsReported()
    {
        QFETCH(const QByteArray, lines);
        const Run run = lastRunOf(withBegin() + firstSteps() + lines + lastSteps());
        QCOMPARE(run.verdict, Verdict::Failed);
        QCOMPARE(run.failedStepCount, 1);
        QTEST(run.failedSteps.at(0).number, "number");
        QTEST(run.failedSteps.at(0).text, "text");
        QCOMPARE(run.failedSteps.at(0).time, u"2026-11-21T15:09:47"_s);
    }

    void aFailureBeforeTheStepsIsReported()
    {
        const Run noLanguage =
            lastRunOf(startOfRun("-I -S -L") + logLine(2, "Install Language ") +
                      stepLine("No Language locale Specified") + programCheck() + firstSteps() + lastSteps());
        QCOMPARE(noLanguage.verdict, Verdict::Failed);
        QCOMPARE(noLanguage.failedSteps.at(0).text, u"No Language locale Specified"_s);
        const QByteArray reset = "Program startup - Install path is empty or is invalid, resetting to:C:\\a";
        const Run otherFolder =
            lastRunOf(startOfRun("-U -S") + stepLine(reset) + goodRemoval().mid(startOfRun("-U -S").size()));
        QCOMPARE(otherFolder.verdict, Verdict::Failed);
        QCOMPARE(otherFolder.failedSteps.at(0).text, QString::fromLatin1(reset));
    }

    void missingMaterialsAreOneFailure()
    {
        const Run run = lastRunOf(withBegin() + firstSteps() + stepLine("Processing NVX_flags.txt") +
                                  stepLine("Checking material database") +
                                  stepLine("Installation error matprop.mdb does not exist?") +
                                  stepLine("Installation error: C:\\NVX\\matprop.mdb does not exist.") +
                                  stepLine("The installation or update is complete."));
        QCOMPARE(run.verdict, Verdict::Failed);
        QCOMPARE(run.failedStepCount, 1);
        QCOMPARE(run.failedSteps.at(0).text, u"Installation error: C:\\NVX\\matprop.mdb does not exist."_s);
    }

    void aFailedProgramHasItsStepItsCommandAndItsOutput()
    {
        const Run run = lastRunOf(withBegin() + firstSteps() + stepLine("Installing Python") +
                                  program("7z.exe x a", 2, "ERROR") + logLine(2, "  caf\xC3\xA9 \xFF") +
                                  stepLine("  not of this program") + lastSteps());
        QCOMPARE(run.failedStepCount, 1);
        const FailedStep &failure = run.failedSteps.at(0);
        QCOMPARE(failure.kind, FailedStep::Kind::Program);
        QCOMPARE(failure.step, u"Installing Python"_s);
        QCOMPARE(failure.command, u"7z.exe x a"_s);
        QCOMPARE(failure.output, QStringList({u"ERROR"_s, u"caf\u00E9 \uFFFD"_s}));
    }

    void aFailedRemovalHasTheLaterLinesOfItsOutput()
    {
        const Run run = lastRunOf(withBegin() + firstSteps() + removal("C:\\a", 5) + lastSteps());
        QCOMPARE(run.failedSteps.size(), std::size_t(1));
        const FailedStep &failure = run.failedSteps.at(0);
        QCOMPARE(failure.kind, FailedStep::Kind::Removal);
        QCOMPARE(failure.output, QStringList({u"C:\\NVX>rmdir /s /q \"C:\\a\""_s, u"Some words."_s}));
    }

    void onlyTheLastRunCounts()
    {
        const QByteArray bad = withBegin() + firstSteps() + logLine(1, "bad") + lastSteps();
        QCOMPARE(lastRunOf(bad + goodInstall()).verdict, Verdict::Ok);
        QCOMPARE(lastRunOf(goodInstall() + bad).verdict, Verdict::Failed);
        QCOMPARE(lastRunOf(bad + startOfRun("-I")).failedStepCount, 0);
    }

    void theLineOfARunInTheOutputOfAProgramBeginsNone()
    {
        const QByteArray line(77, '=');
        const Run run =
            lastRunOf(withBegin() + firstSteps() + program("a.exe", 2, line) + line + '\n' + lastSteps());
        QCOMPARE(run.verdict, Verdict::Failed);
    }

    void aFileWithoutARunHasNone()
    {
        for (const QByteArray &log :
             {QByteArray(), QByteArray("words\n"), stepLine("a"), stepLine(QByteArray(76, '=')),
              stepLine(QByteArray(78, '=')), logLine(1, QByteArray(77, '-'))}) {
            RunReader reader;
            LineSplitter lines([&reader](QByteArrayView text) { reader.addLine(text); });
            lines.add(log);
            lines.finish();
            QVERIFY2(!reader.lastRun(), log.constData());
        }
    }

    void aRunEndsTheSameWithEitherLineEnd()
    {
        QByteArray log =
            withBegin() + firstSteps() + program("a.exe", 2, "b") + removal("C:\\a", 5) + lastSteps();
        const Run run = lastRunOf(log);
        const Run other = lastRunOf(log.replace("\n", "\r\n"));
        QCOMPARE(other.verdict, run.verdict);
        QCOMPARE(other.failedStepCount, 2);
        QCOMPARE(other.failedSteps.at(1).output, run.failedSteps.at(1).output);
    }

    void ofManyFailuresTheFirstAreListed()
    {
        RunReader reader;
        LineSplitter lines([&reader](QByteArrayView line) { reader.addLine(line); });
        lines.add(withBegin() + firstSteps());
        const QByteArray failure = program("a.exe", 2, "b");
        constexpr int count = 20'000;
        for (int i = 0; i < count; ++i)
            lines.add(failure);
        for (int i = 0; i < count; ++i)
            lines.add(logLine(2, "  more"));
        lines.add(lastSteps());
        lines.finish();
        const Run run = reader.lastRun().value_or(Run());
        QCOMPARE(run.failedStepCount, count);
        QCOMPARE(run.failedSteps.size(), RunReader::maxFailedSteps);
        QCOMPARE(run.failedSteps.back().output.size(), 1);
    }
};

NVX_GUILESS_TEST(tst_log_run)

#include "tst_log_run.moc"
