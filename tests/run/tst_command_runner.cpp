#include "run/command_runner.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using Outcome = ProgramResult::Outcome;

class tst_command_runner : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init() { m_fixture = std::make_unique<SetupFixture>(); }

    void aRunIsLoggedWithItsArgumentsFolderAndOutput()
    {
        m_fixture->machine.programResult = {Outcome::Exited, 0, "first\n\n second \n"};
        const int code =
            runner().runCommand(text("C:\\a b\\7z.exe"), {text("x"), text("-y")}, text("C:\\work"));
        QCOMPARE(code, 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("0 Command:C:\\a b\\7z.exe x -y"), text("0 WorkDir:C:\\work"),
                              text("0 Output:"), text("0   first"), text("0   second")}));
    }

    void withoutArgumentsNothingFollowsTheProgram()
    {
        runner().runCommand(text("a.exe"), {}, text("w"));
        QCOMPARE(m_fixture->reporter.lines.first(), text("0 Command:a.exe"));
    }

    void anEmptyWorkFolderIsTheInstallDir()
    {
        runner().runCommand(text("a.exe"), {}, QString());
        QCOMPARE(m_fixture->reporter.lines.at(1), text("0 WorkDir:") + m_fixture->state.installDir);
        QCOMPARE(m_fixture->machine.calls.first().workFolder, m_fixture->state.installDir);
    }

    void theUsualTimeOutIsThirtySecondsAndMinusOneIsNone()
    {
        runner().runCommand(text("a.exe"), {}, QString());
        runner().runCommand(text("a.exe"), {}, QString(), -1);
        QCOMPARE(m_fixture->machine.calls.at(0).timeoutMs, 30000);
        QCOMPARE(m_fixture->machine.calls.at(1).timeoutMs, -1);
    }

    void theExitCodeIsTheLevelOfTheOutput_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("255") << int(Outcome::Exited) << 255 << 255
                             << QStringList({text("255 Output:"), text("255   x")});
        QTest::newRow("negative") << int(Outcome::Exited) << -5 << -5
                                  << QStringList({text("-5 Output:"), text("-5   x")});
        QTest::newRow("not started") << int(Outcome::NotStarted) << 0 << CommandRunner::notStarted
                                     << QStringList({text("-2 Output:"), text("-2   x"),
                                                     text("-2   The program could not be started.")});
        QTest::newRow("hanging") << int(Outcome::TimedOut) << 0 << CommandRunner::timedOut
                                 << QStringList({text("-1 Output:"), text("-1   x"),
                                                 text("-1   The program was still running after 30000 ms and "
                                                      "has been ended.")});
        QTest::newRow("a result code of Windows")
            << int(Outcome::Exited) << static_cast<int>(0x80070005U) << -2147024891
            << QStringList({text("-2147024891 Output:"), text("-2147024891   x")});
        QTest::newRow("crashed") << int(Outcome::Crashed) << 139 << 139
                                 << QStringList({text("139 Output:"), text("139   x"),
                                                 text("139   The program crashed.")});
    }

    void theExitCodeIsTheLevelOfTheOutput()
    {
        QFETCH(int, outcome);
        QFETCH(int, exitCode);
        m_fixture->machine.programResult = {static_cast<Outcome>(outcome), exitCode, "x\n"};
        QTEST(runner().runCommand(text("a.exe"), {}, QString()), "answer");
        QTEST(m_fixture->reporter.lines.mid(2), "lines");
    }

    void aSystemCommandIsLoggedByItsNameAndStartedFromTheSystemFolder()
    {
        runner().runSystemCommand(text("regedit"), {text("-s")}, QString());
        QCOMPARE(m_fixture->reporter.lines.first(), text("0 Command:regedit -s"));
        QVERIFY(m_fixture->machine.calls.first().place == ProgramCall::Place::SystemFolder);
        QVERIFY(m_fixture->machine.calls.first().quoting == ProgramCall::Quoting::Arguments);
    }

    void aFolderIsRemovedByABatchFileBesideTheInstallDir()
    {
        const QString batchFile = m_fixture->state.installDir + text("work.bat");
        QByteArray commandLine;
        m_fixture->machine.whileRunning = [&](const ProgramCall &) { commandLine = readFile(batchFile); };
        m_fixture->machine.programResult = {Outcome::Exited, 0, "gone\r\n"};
        QVERIFY(runner().removeDirectory(text("C:\\a b\\Lib")));

        QCOMPARE(commandLine, QByteArray("rmdir /s /q \"C:\\a b\\Lib\""));
        QVERIFY(!QFile::exists(batchFile));
        const ProgramCall &call = m_fixture->machine.calls.first();
        QCOMPARE(call.program, text("cmd.exe"));
        QCOMPARE(call.arguments, QStringList({text("/C"), batchFile}));
        QVERIFY(call.place == ProgramCall::Place::SystemFolder);
        QVERIFY(call.quoting == ProgramCall::Quoting::CommandInterpreter);
        QCOMPARE(call.timeoutMs, 30000);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("0 Command:cmd.exe /C %1 ").arg(batchFile), text("0  output:gone\r\n")}));
    }

    void anOldBatchFileIsReplaced()
    {
        const QString batchFile = m_fixture->state.installDir + text("work.bat");
        writeFile(batchFile, "format c:\r\n");
        QByteArray commandLine;
        m_fixture->machine.whileRunning = [&](const ProgramCall &) { commandLine = readFile(batchFile); };
        runner().removeDirectory(text("C:\\a"));
        QCOMPARE(commandLine, QByteArray("rmdir /s /q \"C:\\a\""));
    }

    void aBatchFileThatCannotBeMadeIsNotRun()
    {
        const QString batchFile = m_fixture->state.installDir + text("work.bat");
        QVERIFY(QDir().mkpath(batchFile + text("/x"))); // a folder of that name is in the way
        QVERIFY(runner().removeDirectory(text("C:\\a")));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(
            m_fixture->reporter.lines,
            QStringList{text("1 Unable to create %1, this folder is not removed: C:\\a").arg(batchFile)});
    }

    void aFolderThatTheCodePageCannotNameIsNotRemoved()
    {
        const QString path = text("C:\\a") + QChar(0xD800);
        QVERIFY(runner().removeDirectory(path));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines.size(), 1);
        QVERIFY(m_fixture->reporter.lines.first().endsWith(path));
    }

    void aRemovalWhoseInterpreterFailsIsLoggedAndCountsAsDone()
    {
        m_fixture->machine.programResult = {Outcome::NotStarted, 0, {}};
        QVERIFY(runner().removeDirectory(text("C:\\a")));
        QCOMPARE(m_fixture->reporter.lines.last(), text("-2  output:"));
    }

    void theRemovalCommandNamesExactlyTheFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        QTest::newRow("blanks") << text("C:\\a b") << text("rmdir /s /q \"C:\\a b\"");
        QTest::newRow("a percent sign is doubled")
            << text("C:\\50% %TEMP%\\x") << text("rmdir /s /q \"C:\\50%% %%TEMP%%\\x\"");
        QTest::newRow("a double quote is not escaped")
            << text("C:\\a\"b") << text("rmdir /s /q \"C:\\a\"b\"");
    }

    void theRemovalCommandNamesExactlyTheFolder()
    {
        QFETCH(QString, path);
        QTEST(removalCommand(path), "expected");
    }

    void filesAreRemovedWhoseUpperCasePathContainsThePattern_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("left");
        QTest::newRow(".LOG matches anywhere in the name") << text(".LOG") << QStringList({text("b.txt")});
        QTest::newRow("a lower-case pattern never matches")
            << text("x.log") << QStringList({text("A.LOGBOOK"), text("X.LOG"), text("b.txt"), text("c.log")});
        QTest::newRow("one lower-case letter is enough")
            << text(".LOg") << QStringList({text("A.LOGBOOK"), text("X.LOG"), text("b.txt"), text("c.log")});
        QTest::newRow("the folder's name counts too") << text("REPORTS") << QStringList();
        QTest::newRow("nothing matches")
            << text(".PYC") << QStringList({text("A.LOGBOOK"), text("X.LOG"), text("b.txt"), text("c.log")});
    }

    void filesAreRemovedWhoseUpperCasePathContainsThePattern()
    {
        QFETCH(QString, pattern);
        const QString folder = m_fixture->test.path(text("Reports"));
        for (const char *name : {"A.LOGBOOK", "X.LOG", "b.txt", "c.log"})
            writeFile(folder + QLatin1Char('/') + text(name));
        writeFile(folder + text("/below/d.LOG"));
        QVERIFY(runner().removeMatchingFiles(folder, pattern));
        QTEST(QDir(folder).entryList(QDir::Files, QDir::Name), "left");
        QVERIFY(QFile::exists(folder + text("/below/d.LOG")));
    }

    void everyRemovalIsLogged()
    {
        const QString folder = m_fixture->test.path(text("Reports"));
        writeFile(folder + text("/a.pyc"));
        runner().removeMatchingFiles(folder, text(".PYC"));
        QCOMPARE(m_fixture->reporter.lines, QStringList{text("0 Removing:%1/a.pyc").arg(folder)});
    }

    void aHiddenFileIsRemovedLikeAnyOther()
    {
        const QString folder = m_fixture->test.path(text("Reports"));
        writeFile(folder + text("/.old.pyc"));
        QVERIFY(runner().removeMatchingFiles(folder, text(".PYC")));
        QVERIFY(!QFile::exists(folder + text("/.old.pyc")));
    }

    void aFolderOfTheMatchingNameStays()
    {
        const QString folder = m_fixture->test.path(text("Reports"));
        writeFile(folder + text("/cache.pyc/x"));
        runner().removeMatchingFiles(folder, text("CACHE.PYC"));
        QVERIFY(QFile::exists(folder + text("/cache.pyc/x")));
        QVERIFY(m_fixture->reporter.lines.isEmpty());
    }

    void aMissingFolderGivesFalseAndNoLine()
    {
        QVERIFY(!runner().removeMatchingFiles(m_fixture->test.path(text("missing")), text(".PYC")));
        QVERIFY(m_fixture->reporter.lines.isEmpty());
    }

private:
    CommandRunner runner() { return CommandRunner(m_fixture->context()); }

    std::unique_ptr<SetupFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_command_runner)
#include "tst_command_runner.moc"
