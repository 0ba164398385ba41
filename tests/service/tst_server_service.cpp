#include "nvx_util/system.h"
#include "run/run_state.h"
#include "service/server_service.h"
#include "support/recorded_diagnostics.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using Nvx::Util::ProgramCall;
using Nvx::Util::ServiceState;
using AtStop = RecordingServices::AtStop;
using Outcome = Nvx::Util::ProgramResult::Outcome;
using namespace std::chrono_literals;

namespace {

const QString start = text("start NVX 2017 Server");
const QString stop = text("stop NVX 2017 Server");
const QString removal = text("remove NVX 2017 Server");
const QString beginning = text("0 uninstallServer ");
const QString notStopped = text("0 uninstallServer - could not stop service");
const QString notInTime = text("The server has not stopped in time and is ended");
const QString notInstalled = text("0 uninstallServer - service was not installed");
const QString notUninstalled = text("0 uninstallServer - could not uninstall service");
const QString ended = text("0 NVXServer terminated");

} // namespace

class tst_server_service : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_test.reset(); }

    void init()
    {
        m_test = std::make_unique<TestMachine>();
        m_machine = std::make_unique<RecordingMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_service = std::make_unique<NvxService>(*m_machine);
        m_removedFolders.clear();
        m_state = RunState();
        m_state.installDir = m_test->installDir();
        m_analyze = joinPath(Nvx::Util::System::getProgramDataPath(text("NVX 2017")), text("Analyze"));
        m_server = m_test->path(text("NVX/NVXServer.exe"));
        writeFile(m_server);
        m_machine->whileRunning = [this](const ProgramCall &call) {
            if (call.program == text("cmd.exe"))
                m_removedFolders
                    << QString::fromUtf8(readFile(call.arguments.last())).section(QLatin1Char('"'), 1, 1);
            else if (m_machine->service.current == ServiceState::NotInstalled)
                m_machine->service.current = ServiceState::Stopped; // it registers itself
            else
                m_machine->programResult.exitCode = 1; // the name is taken
        };
    }

    void anInstallRegistersAndStartsTheServer()
    {
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_machine->calls.size(), 1);
        QCOMPARE(m_machine->calls.first().program, m_server);
        QCOMPARE(m_machine->calls.first().arguments, QStringList{text("-i")});
        QCOMPARE(m_machine->service.asked, QStringList{start});
        QVERIFY(m_machine->service.current == ServiceState::Active);
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theDescriptionIsTheServersOwn()
    {
        install();
        QCOMPARE(m_service->serviceDescription(), text("as registered"));
        QCOMPARE(m_service->serviceName(), text("NVX 2017 Server"));
    }

    void aMissingServerIsToldOnce()
    {
        QVERIFY(QFile::remove(m_server));
        writeFile(joinPath(m_analyze, text("solver_manager.cfg")));
        QVERIFY(install() == ServerService::Installed::ProgramMissing);
        QCOMPARE(m_reporter->lines,
                 QStringList{
                     text("inform 1 Unable to find server executable; Check_ Installation Directory path:") +
                     m_server});
        QVERIFY(m_machine->boxes.isEmpty()); // no box beside that of the reporter
        QVERIFY(m_machine->calls.isEmpty());
        QVERIFY(m_machine->service.asked.isEmpty());
        QVERIFY(QFile::exists(joinPath(m_analyze, text("solver_manager.cfg"))));
    }

    void aFailedRegistrationIsShownAndNotLogged_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::newRow("the server says so") << int(Outcome::Exited);
        QTest::newRow("the server crashes") << int(Outcome::Crashed);
        QTest::newRow("the server cannot be started") << int(Outcome::NotStarted);
        QTest::newRow("the server hangs") << int(Outcome::TimedOut);
    }

    void aFailedRegistrationIsShownAndNotLogged()
    {
        QFETCH(int, outcome);
        m_machine->whileRunning = nullptr;
        m_machine->programResult = {static_cast<Outcome>(outcome), 3, {}};
        const RecordedDiagnostics diagnostics;
        QVERIFY(install() == ServerService::Installed::RegistrationFailed);
        QCOMPARE(m_machine->boxes.size(), 1);
        QVERIFY(m_machine->boxes.first().kind == Nvx::Util::BoxKind::Critical);
        QCOMPARE(m_machine->boxes.first().title, text("Server Error"));
        QCOMPARE(m_machine->boxes.first().text, text("Unable to install the server"));
        QCOMPARE(m_reporter->lines, QStringList());
        QCOMPARE(diagnostics.list(), QStringList{m_server + text(" has not registered its service")});
        QVERIFY(m_machine->service.asked.isEmpty());
    }

    void aServerThatCannotBeStartedIsNotInTheLog()
    {
        const RecordedDiagnostics diagnostics;
        m_machine->service.canBeStarted = false;
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_reporter->lines, QStringList());
        QCOMPARE(diagnostics.list(),
                 QStringList{text("The server has been registered, but could not be started")});
        QVERIFY(m_machine->boxes.isEmpty());
    }

    void theServerStartsWithoutItsOldConfigurationAndLog()
    {
        for (const char *name : {"solver_manager.cfg", "solver_manager.log", "jobs.txt"})
            writeFile(joinPath(m_analyze, text(name)));
        install();
        QCOMPARE(QDir(m_analyze).entryList(QDir::Files), QStringList{text("jobs.txt")});
    }

    void uninstallingWhatWasNeverInstalledCleansUpAllTheSame()
    {
        uninstall();
        QCOMPARE(told(), QStringList({beginning, notStopped, notInstalled}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop}));
        QVERIFY(m_machine->sleeps.isEmpty());
        assertFoldersRemoved();
    }

    void aRunningServiceIsStoppedAndDeleted()
    {
        m_machine->service.current = ServiceState::Active;
        uninstall();
        QCOMPARE(told(), QStringList{beginning});
        QCOMPARE(m_machine->service.asked, QStringList({stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
        QVERIFY(m_machine->sleeps.isEmpty());
        assertFoldersRemoved();
    }

    void theFoldersGoWhenTheServerCannotUseThemAnyMore()
    {
        m_machine->service.current = ServiceState::Active;
        QList<ServiceState> states;
        m_machine->whileRunning = [&](const ProgramCall &) { states << m_machine->service.current; };
        uninstall();
        QCOMPARE(states, QList<ServiceState>(2, ServiceState::NotInstalled));
    }

    void aStoppedServiceIsDeleted()
    {
        m_machine->service.current = ServiceState::Stopped;
        uninstall();
        QCOMPARE(told(), QStringList({beginning, notStopped}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
    }

    void aServiceThatRefusesToStopIsEnded()
    {
        runServer(AtStop::Refuses);
        uninstall();
        QCOMPARE(told(), QStringList({beginning, notStopped, ended}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
        assertFoldersRemoved();
    }

    void everyProcessOfTheServerIsEndedWithAndWithoutAnExtension()
    {
        for (const char *path : {"C:\\NVX\\NVXServer.exe", "D:\\old\\nvxserver", "D:\\old\\NVXServer.com",
                                 "C:\\NVX\\NVXServer.exe.bak", "C:\\NVXServer\\NVX.exe"})
            m_machine->running.add(text(path));
        uninstall();
        QCOMPARE(m_machine->running.ended,
                 QStringList({text("C:\\NVX\\NVXServer.exe"), text("D:\\old\\nvxserver")}));
        QCOMPARE(told(), QStringList({beginning, notStopped, ended, ended, notInstalled}));
    }

    void aServiceThatDoesNotStopInTimeIsEnded()
    {
        runServer(AtStop::Hangs);
        const RecordedDiagnostics diagnostics;
        uninstall();
        QCOMPARE(told(), QStringList({beginning, ended}));
        QCOMPARE(diagnostics.list(), QStringList{notInTime});
        QCOMPARE(m_machine->service.asked, QStringList({stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
    }

    void aServiceWhoseEndIsNoticedLateIsWaitedFor()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = AtStop::Hangs;
        m_machine->afterSleep = [this] {
            if (m_machine->sleeps.size() == 3)
                m_machine->service.endProcess();
        };
        uninstall();
        QCOMPARE(m_machine->sleeps, QList<std::chrono::milliseconds>(3, 100ms));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
    }

    void aServiceThatCannotBeDeletedIsLogged()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.canBeRemoved = false;
        uninstall();
        QCOMPARE(told(), QStringList({beginning, notUninstalled}));
        assertFoldersRemoved();
    }

    void aServiceThatAnotherProgramLooksAtIsWaitedFor()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.isLookedAt = true;
        m_machine->afterSleep = [this] {
            if (m_machine->sleeps.size() == 7)
                m_machine->service.release();
        };
        uninstall();
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_machine->sleeps.size(), 7);
        QCOMPARE(told(), QStringList{beginning});
        QVERIFY(m_machine->service.current == ServiceState::Active);
    }

    void theWaitForADeletedServiceIsBounded()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.isLookedAt = true;
        const RecordedDiagnostics diagnostics;
        uninstall();
        QCOMPARE(m_machine->sleeps, QList<std::chrono::milliseconds>(100, 100ms));
        QCOMPARE(told(), QStringList{beginning});
        QCOMPARE(diagnostics.list(), QStringList{text("The service will be deleted once it has stopped and "
                                                      "no other program has it open")});
        assertFoldersRemoved();
        QVERIFY(install() == ServerService::Installed::RegistrationFailed);
    }

    void theWaitForAServiceThatCannotBeEndedIsBounded()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = AtStop::Refuses;
        uninstall();
        QCOMPARE(m_machine->sleeps.size(), 200); // for its end, and for its name
        assertFoldersRemoved();
    }

    void aReinstallEndsWithAFreshServiceThatRuns_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("atStop");
        QTest::newRow("never installed") << int(ServiceState::NotInstalled) << int(AtStop::Stops);
        QTest::newRow("stopped") << int(ServiceState::Stopped) << int(AtStop::Stops);
        QTest::newRow("running") << int(ServiceState::Active) << int(AtStop::Stops);
        QTest::newRow("refusing to stop") << int(ServiceState::Active) << int(AtStop::Refuses);
        QTest::newRow("hanging at the stop") << int(ServiceState::Active) << int(AtStop::Hangs);
    }

    void aReinstallEndsWithAFreshServiceThatRuns()
    {
        QFETCH(int, state);
        QFETCH(int, atStop);
        if (static_cast<ServiceState>(state) == ServiceState::Active)
            runServer(static_cast<AtStop>(atStop));
        else
            m_machine->service.current = static_cast<ServiceState>(state);
        uninstall();
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
        QVERIFY(install() == ServerService::Installed::Yes);
        QVERIFY(m_machine->service.current == ServiceState::Active);
    }

private:
    ServerService::Installed install() { return server().install(); }
    void uninstall() { server().uninstall(); }
    ServerService server() { return {{*m_machine, *m_reporter, m_state}, *m_service}; }

    // The service runs, and its process can be found.
    void runServer(AtStop atStop)
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = atStop;
        m_machine->running.add(text("C:\\NVX\\NVXServer.exe"));
        m_machine->running.add(text("C:\\NVX\\NVXMonitor.exe"));
        // That the process has ended is noticed a moment later.
        m_machine->afterSleep = [this] {
            if (m_machine->running.ended == QStringList{text("C:\\NVX\\NVXServer.exe")})
                m_machine->service.endProcess();
        };
    }

    void assertFoldersRemoved() const
    {
        QCOMPARE(m_removedFolders, QStringList({m_analyze, m_test->path(text("NVX/HPCAnalyze"))}));
    }

    // What was reported, without the external programs.
    QStringList told() const
    {
        static const QRegularExpression ofPrograms(text("^0 (Command:| output:)"));
        QStringList lines;
        for (const QString &line : std::as_const(m_reporter->lines)) {
            if (!ofPrograms.match(line).hasMatch())
                lines << line;
        }
        return lines;
    }

    std::unique_ptr<TestMachine> m_test;
    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    std::unique_ptr<NvxService> m_service;
    RunState m_state;
    QString m_analyze;
    QString m_server;
    QStringList m_removedFolders;
};

NVX_GUILESS_TEST(tst_server_service)
#include "tst_server_service.moc"
