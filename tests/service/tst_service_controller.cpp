#include "service/nvx_service.h"
#include "support/recording_machine.h"
#include "support/test_class.h"

#include <QTest>

using Nvx::Util::ProgramResult;
using Nvx::Util::ServiceState;
using Outcome = ProgramResult::Outcome;
using namespace Nvx::Service;
using namespace Qt::Literals::StringLiterals;

class tst_service_controller : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_machine = std::make_unique<RecordingMachine>(); }

    void theProductsServiceHasAFixedName()
    {
        QCOMPARE(NvxService(*m_machine).serviceName(), u"NVX 2017 Server"_s);
    }

    void theProgramRegistersItself_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("under the default account") << QString() << QString() << QStringList{u"-i"_s};
        QTest::newRow("under a given account")
            << u"nvx"_s << u"secret word"_s << QStringList{u"-i"_s, u"nvx"_s, u"secret word"_s};
    }

    void theProgramRegistersItself()
    {
        QFETCH(QString, account);
        QFETCH(QString, password);
        QVERIFY(ServiceController::install(*m_machine, u"/opt/a b/NVXServer.exe"_s, account, password));
        QCOMPARE(m_machine->calls.size(), 1);
        QCOMPARE(m_machine->calls.first().program, u"/opt/a b/NVXServer.exe"_s);
        QTEST(m_machine->calls.first().arguments, "arguments");
        QVERIFY(m_machine->service.asked.isEmpty());
    }

    void onlyExitCodeZeroIsASuccess_data()
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

    void onlyExitCodeZeroIsASuccess()
    {
        QFETCH(int, outcome);
        QFETCH(int, exitCode);
        m_machine->programResult = {static_cast<Outcome>(outcome), exitCode, {}};
        QTEST(ServiceController::install(*m_machine, u"a.exe"_s, QString(), QString()), "success");
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
        QTEST(ServiceController(*m_machine, u"x"_s).isInstalled(), "installed");
    }

    void everyRequestNamesTheService()
    {
        m_machine->service.current = ServiceState::Stopped;
        ServiceController controller(*m_machine, u"x y"_s);
        QVERIFY(controller.start());
        QVERIFY(controller.stop());
        QVERIFY(controller.uninstall());
        QCOMPARE(m_machine->service.asked, QStringList({u"start x y"_s, u"stop x y"_s, u"remove x y"_s}));
    }

    void aRefusedRequestReturnsFalse()
    {
        ServiceController controller(*m_machine, u"x"_s);
        QVERIFY(!controller.start());
        QVERIFY(!controller.stop());
        QVERIFY(!controller.uninstall());
    }

    void anAcceptedStopReturnsTrueEvenIfTheServiceHangs()
    {
        m_machine->service.current = ServiceState::Active;
        m_machine->service.atStop = RecordingServices::AtStop::Hangs;
        QVERIFY(ServiceController(*m_machine, u"x"_s).stop());
    }

    void nameAndDescriptionAreCopies()
    {
        ServiceController controller(*m_machine, u"x"_s);
        controller.serviceDescription() = u"another"_s;
        controller.serviceName() = u"another"_s;
        QCOMPARE(controller.serviceDescription(), u"as registered"_s);
        QCOMPARE(controller.serviceName(), u"x"_s);
    }

private:
    std::unique_ptr<RecordingMachine> m_machine;
};

NVX_GUILESS_TEST(tst_service_controller)
#include "tst_service_controller.moc"
