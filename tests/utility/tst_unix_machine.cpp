// The substitute for a Windows machine on other systems.

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

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

const QString scratch = u"HKEY_CURRENT_USER\\Software\\Velmora\\Test scratch"_s;

// With this option the program prints the system's language instead of testing.
constexpr char localeOption[] = "--locale";

// A child process that runs a function and ends.
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

    void withoutAMachineFolderTheProductsFoldersAreInTheUsersData()
    {
        m_test->unsetVariable("NVX_MACHINE");
        m_test->setVariable("XDG_DATA_HOME", m_test->path(u"data"_s));
        const QString root = m_test->path(u"data/velmora/"_s);
        QCOMPARE(System::getUserDataPath(), root + u"AppData/Velmora/NVX 2017"_s);
        QCOMPARE(System::getFlagsDirPath(), root + u"ProgramData/Velmora/NVX 2017"_s);
        QCOMPARE(System::getTutorialsDirPath(), root + u"Public/Documents/Velmora/NVX 2017/Tutorials"_s);
    }

    void theSystemsLanguageIsUsedIfItIsSupported_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QByteArray>("locale");
        QTest::newRow("Japanese") << u"ja_JP.UTF-8"_s << QByteArray("ja-JP");
        QTest::newRow("German of Germany") << u"de_DE.UTF-8"_s << QByteArray("de-DE");
        QTest::newRow("German of Switzerland") << u"de_CH.UTF-8"_s << QByteArray("en-US");
        QTest::newRow("none") << u"C"_s << QByteArray("en-US");
    }

    // Qt reads the system's language once per process, so a new process is needed for each row.
    void theSystemsLanguageIsUsedIfItIsSupported()
    {
        QFETCH(const QString, system);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, system);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(localeOption)});
        QVERIFY(process.waitForFinished());
        QTEST(process.readAllStandardOutput(), "locale");
    }

    void withoutAMachineFolderTheRegistryIsEmptyAndReadOnly()
    {
        QVERIFY(RegistryKey(scratch).setText(u"a"_s, u"x"_s));
        m_test->unsetVariable("NVX_MACHINE");
        RegistryKey key(scratch);
        QVERIFY(!key.hasEntries());
        QVERIFY(!key.text(u"a"_s));
        QVERIFY(!key.setText(u"a"_s, u"y"_s));
        QVERIFY(!key.setNumber(u"b"_s, 1));
        QVERIFY(!key.removeValue(u"a"_s));
    }

    void aNumberThatDoesNotFitInto32BitsIsNone_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<bool>("isNumber");
        QTest::newRow("the largest") << QByteArray("4294967295") << true;
        QTest::newRow("one more") << QByteArray("4294967296") << false;
        QTest::newRow("negative") << QByteArray("-1") << false;
        QTest::newRow("a fraction") << QByteArray("1.5") << false;
    }

    void aNumberThatDoesNotFitInto32BitsIsNone()
    {
        QFETCH(const QByteArray, written);
        writeFile(m_test->path(u"registry.json"_s),
                  "{\"HKEY_CURRENT_USER\\\\Numbers\": {\"a\": " + written + "}}");
        const RegistryKey key(u"HKEY_CURRENT_USER\\Numbers"_s);
        QTEST(key.number(u"a"_s).has_value(), "isNumber");
    }

    void aKeyThatCannotBeRemovedFromTheFileStays()
    {
        const QString large(2 * FullDisk::maximumBytes, u'x');
        QVERIFY(RegistryKey(scratch).setText(u"large"_s, large));
        RegistryKey key(scratch + u"\\Group"_s);
        QVERIFY(key.setText(u"a"_s, u"x"_s));
        {
            const FullDisk disk;
            QVERIFY(!key.removeWhole());
        }
        QVERIFY(key.hasEntries());
        QVERIFY(key.removeWhole());
        QVERIFY(!key.hasEntries());
    }

    void noProcessIsListed()
    {
        Nvx::Util::NativeMachine machine;
        QVERIFY(machine.processes().ids(1024).isEmpty());
        QVERIFY(!machine.processes().open(static_cast<Nvx::Util::ProcessId>(getpid())));
    }

    void thereIsNoSharedDesktop() { QCOMPARE(Nvx::Util::NativeMachine().commonDesktopFolder(), QString()); }

    void aProgramEndedByASignalHasTheExitCodeOfAShell()
    {
        Nvx::Util::ProgramCall call;
        call.program = u"/bin/sh"_s;
        call.arguments = QStringList{u"-c"_s, u"kill -SEGV $$"_s};
        const Nvx::Util::ProgramResult result = Nvx::Util::NativeMachine().run(call);
        QVERIFY(result.outcome == Nvx::Util::ProgramResult::Outcome::Crashed);
        QCOMPARE(result.exitCode, 128 + SIGSEGV);
    }

    void aProcessThatHasEndedIsNotWaitedFor_data()
    {
        QTest::addColumn<bool>("isTakenNoteOf");
        QTest::newRow("waited for by its parent") << true;
        QTest::newRow("a zombie") << false;
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

    void aRunningProcessIsWaitedForUntilTheTimeOut()
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

    void processorsThatCannotBeProbedCountAsOneWithOneCoreAndAreLogged()
    {
        const QString path = m_test->path(u"a.log"_s);
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
                 QByteArray("The processors could not be counted; one processor with one core is assumed\n"));
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
