#include "engine/engine_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::ServiceState;

class tst_server_operations : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        writeFile(m_fixture->installed("NVXSolver.exe"));
        writeFile(m_fixture->installed("NVXServer.exe"));
        m_fixture->machine.whileRunning = [this](const Nvx::Util::ProgramCall &call) {
            if (call.program.endsWith(text("NVXServer.exe")))
                m_fixture->machine.service.current = ServiceState::Stopped;
        };
    }
    void cleanup() { m_fixture.reset(); }

    void installingAnswersZero()
    {
        QCOMPARE(m_fixture->start(text("-I -S")).installServer(), 0);
        QVERIFY(m_fixture->machine.service.current == ServiceState::Active);
    }

    void aMissingServerAnswersOneAndShowsOneBox()
    {
        QVERIFY(QFile::remove(m_fixture->installed("NVXServer.exe")));
        QCOMPARE(m_fixture->start(text("-I -S")).installServer(), 1);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Information);
        const QString told = text("Unable to find server executable; Check_ Installation Directory path:") +
                             m_fixture->installed("NVXServer.exe");
        QCOMPARE(m_fixture->machine.boxes.first().text, told);
        QCOMPARE(m_fixture->lines().last(), text("   1 ") + told);
        QVERIFY(m_fixture->machine.service.current == ServiceState::NotInstalled);
    }

    void aFailedRegistrationAnswersTwoAndShowsOneBox()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 1, {}};
        QCOMPARE(engine.installServer(), 2);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Critical);
    }

    void uninstallingAnswersZeroWhateverItFinds()
    {
        QCOMPARE(m_fixture->start(text("-U -S")).uninstallServer(), 0);
        m_fixture->machine.service.current = ServiceState::Active;
        m_fixture->machine.service.canBeRemoved = false;
        QCOMPARE(m_fixture->engine->uninstallServer(), 0);
    }

    void stoppingServicesInstallsAgainOnInstallOnly_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("state");
        QTest::newRow("install") << int(RunMode::Install) << int(ServiceState::Active);
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << int(ServiceState::NotInstalled);
        QTest::newRow("stop services") << int(RunMode::StopServices) << int(ServiceState::NotInstalled);
        QTest::newRow("localisation") << int(RunMode::Localization) << int(ServiceState::NotInstalled);
    }

    void stoppingServicesInstallsAgainOnInstallOnly()
    {
        QFETCH(int, mode);
        m_fixture->machine.service.current = ServiceState::Active;
        QCOMPARE(m_fixture->start(text("-I -S")).stopServices(static_cast<RunMode>(mode)), 0);
        QTEST(static_cast<int>(m_fixture->machine.service.current), "state");
    }

    void aRunGoesOnWithoutAServer()
    {
        QVERIFY(QFile::remove(m_fixture->installed("NVXServer.exe")));
        m_fixture->start(text("-I -S")).ProcessInstallation();
        QVERIFY(m_fixture->engine->state().runComplete);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_server_operations)
#include "tst_server_operations.moc"
