// What stands for a Windows machine where there is none.

#include "nvx_util/cpu_info.h"
#include "nvx_util/log.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/process_table.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "platform.h"
#include "support/full_disk.h"
#include "support/no_more_files.h"
#include "support/test_machine.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

const QString scratch = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\Test scratch");

// With this option the program tells the system's language instead of testing.
constexpr char localeOption[] = "--locale";

// A child process that does what it is told and ends.
template<typename Act>
pid_t childThat(Act act)
{
    const pid_t child = fork();
    if (child == 0) {
        act();
        _exit(0);
    }
    return child;
}

} // namespace

class tst_unix_machine : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_test = std::make_unique<TestMachine>(); }
    void cleanup() { m_test.reset(); }

    void withoutAFolderForTheMachineTheProductsFoldersLieAmongTheUsersData()
    {
        m_test->unsetVariable("NVX_MACHINE");
        m_test->setVariable("XDG_DATA_HOME", m_test->path(QStringLiteral("data")));
        const QString root = m_test->path(QStringLiteral("data/velmora/"));
        QCOMPARE(System::getUserDataPath(), root + QStringLiteral("AppData/Velmora/NVX 2017"));
        QCOMPARE(System::getFlagsDirPath(), root + QStringLiteral("ProgramData/Velmora/NVX 2017"));
        QCOMPARE(System::getTutorialsDirPath(),
                 root + QStringLiteral("Public/Documents/Velmora/NVX 2017/Tutorials"));
    }

    void theSystemsLanguageIsTakenWhenThereAreTranslations_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QByteArray>("locale");
        QTest::newRow("Japanese") << QStringLiteral("ja_JP.UTF-8") << QByteArray("ja-JP");
        QTest::newRow("German of Germany") << QStringLiteral("de_DE.UTF-8") << QByteArray("de-DE");
        QTest::newRow("German of Switzerland") << QStringLiteral("de_CH.UTF-8") << QByteArray("en-US");
        QTest::newRow("none") << QStringLiteral("C") << QByteArray("en-US");
    }

    // The toolkit looks at the system's language once in a process, so another one has to look.
    void theSystemsLanguageIsTakenWhenThereAreTranslations()
    {
        QFETCH(const QString, system);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), system);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(localeOption)});
        QVERIFY(process.waitForFinished());
        QTEST(process.readAllStandardOutput(), "locale");
    }

    void withoutAFolderForTheMachineTheRegistryIsEmptyAndRefusesEveryChange()
    {
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("a"), QStringLiteral("x")));
        m_test->unsetVariable("NVX_MACHINE");
        RegistryKey key(scratch);
        QVERIFY(!key.hasEntries());
        QVERIFY(!key.text(QStringLiteral("a")));
        QVERIFY(!key.setText(QStringLiteral("a"), QStringLiteral("y")));
        QVERIFY(!key.setNumber(QStringLiteral("b"), 1));
        QVERIFY(!key.removeValue(QStringLiteral("a")));
    }

    void aNumberThatDoesNotFitInto32BitsIsNone_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<bool>("isNumber");
        QTest::newRow("the largest") << QByteArray("4294967295") << true;
        QTest::newRow("one more") << QByteArray("4294967296") << false;
        QTest::newRow("negative") << QByteArray("-1") << false;
        QTest::newRow("no whole number") << QByteArray("1.5") << false;
    }

    void aNumberThatDoesNotFitInto32BitsIsNone()
    {
        QFETCH(const QByteArray, written);
        writeFile(m_test->path(QStringLiteral("registry.json")),
                  "{\"HKEY_CURRENT_USER\\\\Numbers\": {\"a\": " + written + "}}");
        const RegistryKey key(QStringLiteral("HKEY_CURRENT_USER\\Numbers"));
        QTEST(key.number(QStringLiteral("a")).has_value(), "isNumber");
    }

    void aKeyThatCannotBeRemovedOnTheDiskStays()
    {
        const QString large(2 * FullDisk::mostBytes, QLatin1Char('x'));
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("large"), large));
        RegistryKey key(scratch + QStringLiteral("\\Group"));
        QVERIFY(key.setText(QStringLiteral("a"), QStringLiteral("x")));
        {
            const FullDisk disk;
            QVERIFY(!key.removeWhole());
        }
        QVERIFY(key.hasEntries());
        QVERIFY(key.removeWhole());
        QVERIFY(!key.hasEntries());
    }

    void noProgramThatRunsHereIsTakenForOneOfWindows()
    {
        Nvx::Util::NativeMachine machine;
        QVERIFY(machine.processes().ids(1024).isEmpty());
        QVERIFY(!machine.processes().open(static_cast<Nvx::Util::ProcessId>(getpid())));
    }

    void thereIsNoDesktopOfAllUsers()
    {
        QCOMPARE(Nvx::Util::NativeMachine().commonDesktopFolder(), QString());
    }

    void aProgramThatASignalEndsHasTheExitCodeThatAShellGivesIt()
    {
        Nvx::Util::ProgramCall call;
        call.program = QStringLiteral("/bin/sh");
        call.arguments = QStringList{QStringLiteral("-c"), QStringLiteral("kill -SEGV $$")};
        const Nvx::Util::ProgramResult result = Nvx::Util::NativeMachine().run(call);
        QVERIFY(result.outcome == Nvx::Util::ProgramResult::Outcome::Crashed);
        QCOMPARE(result.exitCode, 128 + SIGSEGV);
    }

    void aProcessThatHasEndedIsNotWaitedFor_data()
    {
        QTest::addColumn<bool>("isTakenNoteOf");
        QTest::newRow("its parent has taken note of it") << true;
        QTest::newRow("its parent has yet to take note of it") << false;
    }

    void aProcessThatHasEndedIsNotWaitedFor()
    {
        QFETCH(const bool, isTakenNoteOf);
        const pid_t child = childThat([] {});
        QVERIFY(child > 0);
        if (isTakenNoteOf)
            QCOMPARE(waitpid(child, nullptr, 0), child);
        QElapsedTimer timer;
        timer.start();
        Nvx::Util::Platform::waitForEnd(child, 60000);
        QVERIFY(timer.elapsed() < 30000);
        if (!isTakenNoteOf)
            QCOMPARE(waitpid(child, nullptr, 0), child);
    }

    void aProcessThatGoesOnIsWaitedForAsLongAsItWasSaid()
    {
        const pid_t child = childThat([] { pause(); });
        QVERIFY(child > 0);
        QElapsedTimer timer;
        timer.start();
        Nvx::Util::Platform::waitForEnd(child, 200);
        const qint64 waited = timer.elapsed();
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        QVERIFY2(waited >= 200, qPrintable(QString::number(waited)));
    }

    void aCommandLineThatCannotBeReadIsEmpty()
    {
        const NoMoreFiles none;
        QCOMPARE(Nvx::Util::Platform::commandLine(), QString());
    }

    void processorsThatCannotBeProbedCountAsOneOfOneCoreAndTheLogSaysSo()
    {
        const QString path = m_test->path(QStringLiteral("a.log"));
        Nvx::Util::Log log(path);
        QVERIFY(log.open(true));
        {
            const NoMoreFiles none;
            const Nvx::Util::CpuInfo info(log, m_test->installDir());
            QCOMPARE(info.processorCount(), 1);
            QCOMPARE(info.coresPerProcessor(), 1);
            QVERIFY(!info.isHyperThreadingOn());
        }
        QCOMPARE(readFile(path),
                 QByteArray("The processors could not be probed, one processor of one core is assumed\n"));
    }

private:
    std::unique_ptr<TestMachine> m_test;
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], localeOption) == 0) {
        std::fputs(Nvx::Util::supportedSystemLocale().toLatin1().constData(), stdout);
        return 0;
    }
    tst_unix_machine test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_unix_machine.moc"
