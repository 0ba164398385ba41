#include "service/nvx_service.h"
#include "support/recording_machine.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::ProgramResult;
using Nvx::Util::ServiceState;
using Outcome = ProgramResult::Outcome;

class tst_service_controller : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_machine = std::make_unique<RecordingMachine>(); }

    void theProductsServiceHasItsFixedName()
    {
        QCOMPARE(NvxService(*m_machine).serviceName(), text("NVX 2017 Server"));
    }

    void theProgramRegistersItself_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("under the default account") << QString() << QString() << QStringList{text("-i")};
        QTest::newRow("under an account of its own")
            << text("nvx") << text("secret word")
            << QStringList{text("-i"), text("nvx"), text("secret word")};
    }

    void theProgramRegistersItself()
    {
        QFETCH(QString, account);
        QFETCH(QString, password);
        QVERIFY(ServiceController::install(*m_machine, text("/opt/a b/NVXServer.exe"), account, password));
        QCOMPARE(m_machine->calls.size(), 1);
        QCOMPARE(m_machine->calls.first().program, text("/opt/a b/NVXServer.exe"));
        QTEST(m_machine->calls.first().arguments, "arguments");
        QVERIFY(m_machine->service.asked.isEmpty());
    }

    void theProgramsEndDecidesOnSuccess_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("success");
        QTest::newRow("exit code 0") << int(Outcome::Exited) << 0 << true;
        QTest::newRow("exit code 1") << int(Outcome::Exited) << 1 << false;
        QTest::newRow("exit code -1") << int(Outcome::Exited) << -1 << false;
        QTest::newRow("not started") << int(Outcome::NotStarted) << 0 << false;
        QTest::newRow("crashed") << int(Outcome::Crashed) << 0 << false;
        QTest::newRow("still running at the time-out") << int(Outcome::TimedOut) << 0 << false;
    }

    void theProgramsEndDecidesOnSuccess()
    {
        QFETCH(int, outcome);
        QFETCH(int, exitCode);
        m_machine->programResult = {static_cast<Outcome>(outcome), exitCode, {}};
        QTEST(ServiceController::install(*m_machine, text("a.exe"), QString(), QString()), "success");
    }

    void aServiceIsInstalledWhenItsNameIsKnown_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("installed");
        QTest::newRow("unknown") << int(ServiceState::NotInstalled) << false;
        QTest::newRow("stopped") << int(ServiceState::Stopped) << true;
        QTest::newRow("active") << int(ServiceState::Active) << true;
    }

    void aServiceIsInstalledWhenItsNameIsKnown()
    {
        QFETCH(int, state);
        m_machine->service.current = static_cast<ServiceState>(state);
        QTEST(ServiceController(*m_machine, text("x")).isInstalled(), "installed");
    }

    void everyRequestNamesTheService()
    {
        m_machine->service.current = ServiceState::Stopped;
        ServiceController controller(*m_machine, text("x y"));
        QVERIFY(controller.start());
        QVERIFY(controller.stop());
        QVERIFY(controller.uninstall());
        QCOMPARE(m_machine->service.asked,
                 QStringList({text("start x y"), text("stop x y"), text("remove x y")}));
    }

    void whatTheMachineRefusesIsFalse()
    {
        ServiceController controller(*m_machine, text("x"));
        QVERIFY(!controller.start());
        QVERIFY(!controller.stop());
        QVERIFY(!controller.uninstall());
    }

    void anAcceptedStopIsTrueWhateverComesOfIt()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = RecordingServices::AtStop::Hangs;
        QVERIFY(ServiceController(*m_machine, text("x")).stop());
    }

    void nameAndDescriptionAreCopies()
    {
        ServiceController controller(*m_machine, text("x"));
        controller.serviceDescription() = text("another");
        controller.serviceName() = text("another");
        QCOMPARE(controller.serviceDescription(), text("as registered"));
        QCOMPARE(controller.serviceName(), text("x"));
    }

private:
    std::unique_ptr<RecordingMachine> m_machine;
};

NVX_GUILESS_TEST(tst_service_controller)
#include "tst_service_controller.moc"
