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

using AtStop = RecordingServices::AtStop;
using Nvx::Util::joinPath;
using Nvx::Util::ProgramCall;
using Nvx::Util::ServiceState;
using Outcome = Nvx::Util::ProgramResult::Outcome;
using namespace Nvx::Run;
using namespace Nvx::Service;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString start = u"start NVX 2017 Server"_s;
const QString stop = u"stop NVX 2017 Server"_s;
const QString removal = u"remove NVX 2017 Server"_s;
const QString beginning = u"0 uninstallServer "_s;
const QString notStopped = u"0 uninstallServer - could not stop service"_s;
const QString notInTime = u"The server did not stop in time; its process is ended"_s;
const QString notInstalled = u"0 uninstallServer - service was not installed"_s;
const QString notUninstalled = u"0 uninstallServer - could not uninstall service"_s;
const QString ended = u"0 NVXServer terminated"_s;

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
        m_analyze = joinPath(Nvx::Util::System::getProgramDataPath(u"NVX 2017"_s), u"Analyze"_s);
        m_server = m_test->path(u"NVX/NVXServer.exe"_s);
        writeFile(m_server);
        m_machine->whileRunning = [this](const ProgramCall &call) {
            if (call.program == u"cmd.exe"_s)
                m_removedFolders << QString::fromUtf8(readFile(call.arguments.last())).section(u'"', 1, 1);
            else if (m_machine->service.current == ServiceState::NotInstalled)
                m_machine->service.current = ServiceState::Stopped; // it registers itself
            else
                m_machine->programResult.exitCode = 1; // the name is in use
        };
    }

    void anInstallRegistersAndStartsTheServer()
    {
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_machine->calls.size(), 1);
        QCOMPARE(m_machine->calls.first().program, m_server);
        QCOMPARE(m_machine->calls.first().arguments, QStringList{u"-i"_s});
        QCOMPARE(m_machine->service.asked, QStringList{start});
        QVERIFY(m_machine->service.current == ServiceState::Active);
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theDescriptionIsTheServersOwn()
    {
        install();
        QCOMPARE(m_service->serviceDescription(), u"as registered"_s);
        QCOMPARE(m_service->serviceName(), u"NVX 2017 Server"_s);
    }

    void aMissingServerIsReportedOnce()
    {
        QVERIFY(QFile::remove(m_server));
        writeFile(joinPath(m_analyze, u"solver_manager.cfg"_s));
        QVERIFY(install() == ServerService::Installed::ProgramMissing);
        QCOMPARE(
            m_reporter->lines,
            QStringList{u"inform 1 Unable to find server executable; Check_ Installation Directory path:"_s +
                        m_server});
        QVERIFY(m_machine->boxes.isEmpty()); // only the reporter's message box
        QVERIFY(m_machine->calls.isEmpty());
        QVERIFY(m_machine->service.asked.isEmpty());
        QVERIFY(QFile::exists(joinPath(m_analyze, u"solver_manager.cfg"_s)));
    }

    void aFailedRegistrationIsShownAndNotLogged_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::newRow("an exit code of the server") << int(Outcome::Exited);
        QTest::newRow("a crash") << int(Outcome::Crashed);
        QTest::newRow("a server that cannot be started") << int(Outcome::NotStarted);
        QTest::newRow("a server that hangs") << int(Outcome::TimedOut);
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
        QCOMPARE(m_machine->boxes.first().title, u"Server Error"_s);
        QCOMPARE(m_machine->boxes.first().text, u"Unable to install the server"_s);
        QCOMPARE(m_reporter->lines, QStringList());
        QCOMPARE(diagnostics.list(), QStringList{m_server + u" has not registered its service"_s});
        QVERIFY(m_machine->service.asked.isEmpty());
    }

    void aServerThatCannotBeStartedIsADiagnosticWarning()
    {
        const RecordedDiagnostics diagnostics;
        m_machine->service.canBeStarted = false;
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_reporter->lines, QStringList());
        QCOMPARE(diagnostics.list(),
                 QStringList{u"The server has been registered, but could not be started"_s});
        QVERIFY(m_machine->boxes.isEmpty());
    }

    void anInstallRemovesTheOldConfigurationAndLog()
    {
        for (const char *name : {"solver_manager.cfg", "solver_manager.log", "jobs.txt"})
            writeFile(joinPath(m_analyze, text(name)));
        install();
        QCOMPARE(QDir(m_analyze).entryList(QDir::Files), QStringList{u"jobs.txt"_s});
    }

    void uninstallingAMissingServiceRemovesTheFolders()
    {
        uninstall();
        QCOMPARE(reported(), QStringList({beginning, notStopped, notInstalled}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop}));
        QVERIFY(m_machine->sleeps.isEmpty());
        assertFoldersRemoved();
    }

    void aRunningServiceIsStoppedAndDeleted()
    {
        m_machine->service.current = ServiceState::Active;
        uninstall();
        QCOMPARE(reported(), QStringList{beginning});
        QCOMPARE(m_machine->service.asked, QStringList({stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
        QVERIFY(m_machine->sleeps.isEmpty());
        assertFoldersRemoved();
    }

    void theFoldersAreRemovedAfterTheService()
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
        QCOMPARE(reported(), QStringList({beginning, notStopped}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
    }

    void aServiceThatRefusesToStopIsEnded()
    {
        runServer(AtStop::Refuses);
        uninstall();
        QCOMPARE(reported(), QStringList({beginning, notStopped, ended}));
        QCOMPARE(m_machine->service.asked, QStringList({stop, stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
        assertFoldersRemoved();
    }

    void everyServerProcessIsEndedWithOrWithoutItsExtension()
    {
        for (const char *path : {"C:\\NVX\\NVXServer.exe", "D:\\old\\nvxserver", "D:\\old\\NVXServer.com",
                                 "C:\\NVX\\NVXServer.exe.bak", "C:\\NVXServer\\NVX.exe"})
            m_machine->running.add(text(path));
        uninstall();
        QCOMPARE(m_machine->running.ended,
                 QStringList({u"C:\\NVX\\NVXServer.exe"_s, u"D:\\old\\nvxserver"_s}));
        QCOMPARE(reported(), QStringList({beginning, notStopped, ended, ended, notInstalled}));
    }

    void aServiceThatDoesNotStopInTimeIsEnded()
    {
        runServer(AtStop::Hangs);
        const RecordedDiagnostics diagnostics;
        uninstall();
        QCOMPARE(reported(), QStringList({beginning, ended}));
        QCOMPARE(diagnostics.list(), QStringList{notInTime});
        QCOMPARE(m_machine->service.asked, QStringList({stop, removal}));
        QVERIFY(m_machine->service.current == ServiceState::NotInstalled);
    }

    void theStepWaitsUntilTheServiceHasStopped()
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
        QCOMPARE(reported(), QStringList({beginning, notUninstalled}));
        assertFoldersRemoved();
    }

    void theStepWaitsWhileAnotherProgramHasTheServiceOpen()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.isOpenElsewhere = true;
        m_machine->afterSleep = [this] {
            if (m_machine->sleeps.size() == 7)
                m_machine->service.release();
        };
        uninstall();
        QVERIFY(install() == ServerService::Installed::Yes);
        QCOMPARE(m_machine->sleeps.size(), 7);
        QCOMPARE(reported(), QStringList{beginning});
        QVERIFY(m_machine->service.current == ServiceState::Active);
    }

    void theWaitForADeletedServiceIsLimited()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.isOpenElsewhere = true;
        const RecordedDiagnostics diagnostics;
        uninstall();
        QCOMPARE(m_machine->sleeps, QList<std::chrono::milliseconds>(100, 100ms));
        QCOMPARE(reported(), QStringList{beginning});
        QCOMPARE(diagnostics.list(), QStringList{u"The service will be deleted once it has stopped and "
                                                 "no other program has it open"_s});
        assertFoldersRemoved();
        QVERIFY(install() == ServerService::Installed::RegistrationFailed);
    }

    void theWaitForAServiceThatCannotBeEndedIsLimited()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = AtStop::Refuses;
        uninstall();
        QCOMPARE(m_machine->sleeps.size(), 200); // for the stop and for the name, 100 each
        assertFoldersRemoved();
    }

    void aReinstallEndsWithANewRunningService_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("atStop");
        QTest::newRow("never installed") << int(ServiceState::NotInstalled) << int(AtStop::Stops);
        QTest::newRow("stopped") << int(ServiceState::Stopped) << int(AtStop::Stops);
        QTest::newRow("running") << int(ServiceState::Active) << int(AtStop::Stops);
        QTest::newRow("refusing to stop") << int(ServiceState::Active) << int(AtStop::Refuses);
        QTest::newRow("hanging while it stops") << int(ServiceState::Active) << int(AtStop::Hangs);
    }

    void aReinstallEndsWithANewRunningService()
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

    // Makes the service active, with a process that can be found.
    void runServer(AtStop atStop)
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = atStop;
        m_machine->running.add(u"C:\\NVX\\NVXServer.exe"_s);
        m_machine->running.add(u"C:\\NVX\\NVXMonitor.exe"_s);
        // The service control manager notices the end of the process a moment later.
        m_machine->afterSleep = [this] {
            if (m_machine->running.ended == QStringList{u"C:\\NVX\\NVXServer.exe"_s})
                m_machine->service.endProcess();
        };
    }

    void assertFoldersRemoved() const
    {
        QCOMPARE(m_removedFolders, QStringList({m_analyze, m_test->path(u"NVX/HPCAnalyze"_s)}));
    }

    // The reported lines, without those of external programs.
    QStringList reported() const
    {
        static const QRegularExpression ofPrograms(u"^0 (Command:| output:)"_s);
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
