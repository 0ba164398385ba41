#include "run/command_runner.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using Outcome = ProgramResult::Outcome;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_command_runner : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init() { m_fixture = std::make_unique<SetupFixture>(); }

    void aRunIsLoggedWithItsArgumentsFolderAndOutput()
    {
        m_fixture->machine.programResult = {Outcome::Exited, 0, "first\n\n second \n"};
        const int code = runner().runCommand(u"C:\\a b\\7z.exe"_s, {u"x"_s, u"-y"_s}, u"C:\\work"_s);
        QCOMPARE(code, 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"0 Command:C:\\a b\\7z.exe x -y"_s, u"0 WorkDir:C:\\work"_s, u"0 Output:"_s,
                              u"0   first"_s, u"0   second"_s}));
    }

    void withoutArgumentsOnlyTheProgramIsLogged()
    {
        runner().runCommand(u"a.exe"_s, {}, u"w"_s);
        QCOMPARE(m_fixture->reporter.lines.first(), u"0 Command:a.exe"_s);
    }

    void anEmptyWorkFolderMeansTheInstallDir()
    {
        runner().runCommand(u"a.exe"_s, {}, QString());
        QCOMPARE(m_fixture->reporter.lines.at(1), u"0 WorkDir:"_s + m_fixture->state.installDir);
        QCOMPARE(m_fixture->machine.calls.first().workFolder, m_fixture->state.installDir);
    }

    void theUsualTimeOutIsThirtySecondsAndMinusOneMeansNoLimit()
    {
        runner().runCommand(u"a.exe"_s, {}, QString());
        runner().runCommand(u"a.exe"_s, {}, QString(), -1);
        QCOMPARE(m_fixture->machine.calls.at(0).timeoutMs, 30000);
        QCOMPARE(m_fixture->machine.calls.at(1).timeoutMs, -1);
    }

    void theExitCodeIsTheLevelOfTheOutput_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<int>("returned");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("exit code 255")
            << int(Outcome::Exited) << 255 << 255 << QStringList({u"255 Output:"_s, u"255   x"_s});
        QTest::newRow("a negative exit code")
            << int(Outcome::Exited) << -5 << -5 << QStringList({u"-5 Output:"_s, u"-5   x"_s});
        QTest::newRow("a program that cannot be started")
            << int(Outcome::NotStarted) << 0 << CommandRunner::notStarted
            << QStringList({u"-2 Output:"_s, u"-2   x"_s, u"-2   The program could not be started."_s});
        QTest::newRow("a program that hangs")
            << int(Outcome::TimedOut) << 0 << CommandRunner::timedOut
            << QStringList({u"-1 Output:"_s, u"-1   x"_s,
                            u"-1   The program was still running after 30000 ms and "
                            "has been ended."_s});
        QTest::newRow("an error number of Windows")
            << int(Outcome::Exited) << static_cast<int>(0x80070005U) << -2147024891
            << QStringList({u"-2147024891 Output:"_s, u"-2147024891   x"_s});
        QTest::newRow("a program that crashes")
            << int(Outcome::Crashed) << 139 << 139
            << QStringList({u"139 Output:"_s, u"139   x"_s, u"139   The program crashed."_s});
    }

    void theExitCodeIsTheLevelOfTheOutput()
    {
        QFETCH(int, outcome);
        QFETCH(int, exitCode);
        m_fixture->machine.programResult = {static_cast<Outcome>(outcome), exitCode, "x\n"};
        QTEST(runner().runCommand(u"a.exe"_s, {}, QString()), "returned");
        QTEST(m_fixture->reporter.lines.mid(2), "lines");
    }

    void aSystemCommandIsLoggedByItsNameAndStartedFromTheSystemFolder()
    {
        runner().runSystemCommand(u"regedit"_s, {u"-s"_s}, QString());
        QCOMPARE(m_fixture->reporter.lines.first(), u"0 Command:regedit -s"_s);
        QVERIFY(m_fixture->machine.calls.first().place == ProgramCall::Place::SystemFolder);
        QVERIFY(m_fixture->machine.calls.first().quoting == ProgramCall::Quoting::Arguments);
    }

    void aFolderIsRemovedByABatchFileNextToTheInstallDir()
    {
        const QString batchFile = m_fixture->state.installDir + u"work.bat"_s;
        QByteArray commandLine;
        m_fixture->machine.whileRunning = [&](const ProgramCall &) { commandLine = readFile(batchFile); };
        m_fixture->machine.programResult = {Outcome::Exited, 0, "gone\r\n"};
        QVERIFY(runner().removeDirectory(u"C:\\a b\\Lib"_s));

        QCOMPARE(commandLine, QByteArray("rmdir /s /q \"C:\\a b\\Lib\""));
        QVERIFY(!QFile::exists(batchFile));
        const ProgramCall &call = m_fixture->machine.calls.first();
        QCOMPARE(call.program, u"cmd.exe"_s);
        QCOMPARE(call.arguments, QStringList({u"/D"_s, u"/C"_s, batchFile}));
        QVERIFY(call.place == ProgramCall::Place::SystemFolder);
        QVERIFY(call.quoting == ProgramCall::Quoting::CommandInterpreter);
        QCOMPARE(call.timeoutMs, 30000);
        QCOMPARE(call.outputLimit, 65536);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"0 Command:cmd.exe /C %1 "_s.arg(batchFile), u"0  output:gone\r\n"_s}));
    }

    void anOldBatchFileIsReplaced()
    {
        const QString batchFile = m_fixture->state.installDir + u"work.bat"_s;
        writeFile(batchFile, "format c:\r\n");
        QByteArray commandLine;
        m_fixture->machine.whileRunning = [&](const ProgramCall &) { commandLine = readFile(batchFile); };
        runner().removeDirectory(u"C:\\a"_s);
        QCOMPARE(commandLine, QByteArray("rmdir /s /q \"C:\\a\""));
    }

    void aBatchFileThatCannotBeCreatedIsNotRun()
    {
        const QString batchFile = m_fixture->state.installDir + u"work.bat"_s;
        QVERIFY(QDir().mkpath(batchFile + u"/x"_s)); // a folder has that name
        QVERIFY(runner().removeDirectory(u"C:\\a"_s));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList{u"1 Unable to create %1; this folder is not removed: C:\\a"_s.arg(batchFile)});
    }

    void aFolderWhoseNameTheCodePageCannotWriteIsNotRemoved()
    {
        const QString path = u"C:\\a"_s + QChar(0xD800);
        QVERIFY(runner().removeDirectory(path));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines.size(), 1);
        QVERIFY(m_fixture->reporter.lines.first().endsWith(path));
    }

    void aFolderWhoseNameCouldEndItsCommandIsNotRemoved_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a double quote") << u"C:\\a\" & rmdir /s /q \"C:\\b"_s;
        QTest::newRow("a line feed") << u"C:\\a\nrmdir /s /q C:\\b"_s;
        QTest::newRow("a carriage return") << u"C:\\a\r"_s;
        QTest::newRow("a NUL") << u"C:\\a"_s + QChar(0);
    }

    void aFolderWhoseNameCouldEndItsCommandIsNotRemoved()
    {
        QFETCH(QString, path);
        QVERIFY(runner().removeDirectory(path));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList{
                     u"1 The name of this folder contains a character that ends or changes a command; it is "
                     "not removed: "_s +
                     path});
    }

    void aRemovalThatFailsIsLoggedAndReturnsTrue()
    {
        m_fixture->machine.programResult = {Outcome::NotStarted, 0, {}};
        QVERIFY(runner().removeDirectory(u"C:\\a"_s));
        QCOMPARE(m_fixture->reporter.lines.last(), u"-2  output:"_s);
    }

    void theRemovalCommandNamesTheFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        QTest::newRow("blanks are quoted") << u"C:\\a b"_s << u"rmdir /s /q \"C:\\a b\""_s;
        QTest::newRow("a percent sign is doubled")
            << u"C:\\50% %TEMP%\\x"_s << u"rmdir /s /q \"C:\\50%% %%TEMP%%\\x\""_s;
        QTest::newRow("a double quote is not escaped") << u"C:\\a\"b"_s << u"rmdir /s /q \"C:\\a\"b\""_s;
    }

    void theRemovalCommandNamesTheFolder()
    {
        QFETCH(QString, path);
        QTEST(removalCommand(path), "expected");
    }

    void filesWhoseUpperCasePathContainsThePatternAreRemoved_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("remaining");
        QTest::newRow(".LOG matches anywhere in the name") << u".LOG"_s << QStringList({u"b.txt"_s});
        QTest::newRow("a lower-case pattern never matches")
            << u"x.log"_s << QStringList({u"A.LOGBOOK"_s, u"X.LOG"_s, u"b.txt"_s, u"c.log"_s});
        QTest::newRow("a pattern with one lower-case letter never matches")
            << u".LOg"_s << QStringList({u"A.LOGBOOK"_s, u"X.LOG"_s, u"b.txt"_s, u"c.log"_s});
        QTest::newRow("the folder is part of the path") << u"REPORTS"_s << QStringList();
        QTest::newRow("a pattern that matches no file")
            << u".PYC"_s << QStringList({u"A.LOGBOOK"_s, u"X.LOG"_s, u"b.txt"_s, u"c.log"_s});
    }

    void filesWhoseUpperCasePathContainsThePatternAreRemoved()
    {
        QFETCH(QString, pattern);
        const QString folder = m_fixture->test.path(u"Reports"_s);
        for (const char *name : {"A.LOGBOOK", "X.LOG", "b.txt", "c.log"})
            writeFile(folder + u'/' + text(name));
        writeFile(folder + u"/below/d.LOG"_s);
        QVERIFY(runner().removeMatchingFiles(folder, pattern));
        QTEST(QDir(folder).entryList(QDir::Files, QDir::Name), "remaining");
        QVERIFY(QFile::exists(folder + u"/below/d.LOG"_s));
    }

    void everyRemovalIsLogged()
    {
        const QString folder = m_fixture->test.path(u"Reports"_s);
        writeFile(folder + u"/a.pyc"_s);
        runner().removeMatchingFiles(folder, u".PYC"_s);
        QCOMPARE(m_fixture->reporter.lines, QStringList{u"0 Removing:%1/a.pyc"_s.arg(folder)});
    }

    void aHiddenFileIsRemovedToo()
    {
        const QString folder = m_fixture->test.path(u"Reports"_s);
        writeFile(folder + u"/.old.pyc"_s);
        QVERIFY(runner().removeMatchingFiles(folder, u".PYC"_s));
        QVERIFY(!QFile::exists(folder + u"/.old.pyc"_s));
    }

    void aFolderWithAMatchingNameStays()
    {
        const QString folder = m_fixture->test.path(u"Reports"_s);
        writeFile(folder + u"/cache.pyc/x"_s);
        runner().removeMatchingFiles(folder, u"CACHE.PYC"_s);
        QVERIFY(QFile::exists(folder + u"/cache.pyc/x"_s));
        QVERIFY(m_fixture->reporter.lines.isEmpty());
    }

    void aMissingFolderReturnsFalseAndLogsNothing()
    {
        QVERIFY(!runner().removeMatchingFiles(m_fixture->test.path(u"missing"_s), u".PYC"_s));
        QVERIFY(m_fixture->reporter.lines.isEmpty());
    }

private:
    CommandRunner runner() { return CommandRunner(m_fixture->context()); }

    std::unique_ptr<SetupFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_command_runner)
#include "tst_command_runner.moc"
