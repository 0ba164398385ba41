#include "engine/engine_fixture.h"
#include "support/test_class.h"

#include <QTest>

using Nvx::Util::ServiceState;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

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
            if (call.program.endsWith(u"NVXServer.exe"_s))
                m_fixture->machine.service.current = ServiceState::Stopped;
        };
    }
    void cleanup() { m_fixture.reset(); }

    void installingReturnsZero()
    {
        QCOMPARE(m_fixture->start(u"-I -S"_s).installServer(), 0);
        QVERIFY(m_fixture->machine.service.current == ServiceState::Active);
    }

    void aMissingServerReturnsOneAndShowsOneMessageBox()
    {
        QVERIFY(QFile::remove(m_fixture->installed("NVXServer.exe")));
        QCOMPARE(m_fixture->start(u"-I -S"_s).installServer(), 1);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Information);
        const QString message = u"Unable to find server executable; Check_ Installation Directory path:"_s +
                                m_fixture->installed("NVXServer.exe");
        QCOMPARE(m_fixture->machine.boxes.first().text, message);
        QCOMPARE(m_fixture->lines().last(), u"   1 "_s + message);
        QVERIFY(m_fixture->machine.service.current == ServiceState::NotInstalled);
    }

    void aFailedRegistrationReturnsTwoAndShowsOneMessageBox()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 1, {}};
        QCOMPARE(engine.installServer(), 2);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Critical);
    }

    void uninstallingAlwaysReturnsZero()
    {
        QCOMPARE(m_fixture->start(u"-U -S"_s).uninstallServer(), 0);
        m_fixture->machine.service.current = ServiceState::Active;
        m_fixture->machine.service.canBeRemoved = false;
        QCOMPARE(m_fixture->engine->uninstallServer(), 0);
    }

    void stoppingServicesInstallsTheServerAgainOnlyOnInstall_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("state");
        QTest::newRow("install") << int(RunMode::Install) << int(ServiceState::Active);
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << int(ServiceState::NotInstalled);
        QTest::newRow("stop services") << int(RunMode::StopServices) << int(ServiceState::NotInstalled);
        QTest::newRow("localisation") << int(RunMode::Localization) << int(ServiceState::NotInstalled);
    }

    void stoppingServicesInstallsTheServerAgainOnlyOnInstall()
    {
        QFETCH(int, mode);
        m_fixture->machine.service.current = ServiceState::Active;
        QCOMPARE(m_fixture->start(u"-I -S"_s).stopServices(static_cast<RunMode>(mode)), 0);
        QTEST(static_cast<int>(m_fixture->machine.service.current), "state");
    }

    void aRunContinuesWithoutAServer()
    {
        QVERIFY(QFile::remove(m_fixture->installed("NVXServer.exe")));
        m_fixture->start(u"-I -S"_s).ProcessInstallation();
        QVERIFY(m_fixture->engine->state().runComplete);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_server_operations)
#include "tst_server_operations.moc"
