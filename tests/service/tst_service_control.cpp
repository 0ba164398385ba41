#include "nvx_util/native_machine.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/service_control.h"
#include "service/nvx_service.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QElapsedTimer>
#include <QTest>

#include <memory>

using Nvx::Util::NativeMachine;
using Nvx::Util::RegistryKey;
using Nvx::Util::ServiceState;
using Nvx::Util::ServiceStop;
using namespace Nvx::Service;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"NVX 2017 Server"_s;

} // namespace

/// The real service control manager, with the sample product's server as a service program.
class tst_service_control : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_server = m_folder->path(u"Program Files (x86)/Größe 2017/NVXServer.exe"_s);
        QVERIFY(QDir().mkpath(QFileInfo(m_server).path()));
        QVERIFY(QFile::copy(inCheckout(NVX_SERVER), m_server));
        m_machine = std::make_unique<NativeMachine>();
        QVERIFY(!service().isInstalled());
    }

    void cleanup()
    {
        for (const char *ending : {".refuses-to-stop", ".hangs-at-stop"})
            QFile::remove(m_server + text(ending));
        QTRY_VERIFY(stopsOrIsStopped());
        m_machine->services().remove(name);
        QTRY_VERIFY(!service().isInstalled());
        m_folder.reset();
    }

    void aServiceIsInstalledStartedStoppedAndDeleted()
    {
        QVERIFY(install());
        QVERIFY(service().isInstalled());
        QVERIFY(m_machine->services().state(name) == ServiceState::Stopped);
        QVERIFY(service().start());
        QVERIFY(m_machine->services().state(name) == ServiceState::Active);
        QVERIFY(service().stop());
        QVERIFY(m_machine->services().state(name) == ServiceState::Stopped);
        QVERIFY(service().uninstall());
        QVERIFY(!service().isInstalled());
    }

    void theProgramRegistersItsOwnDescriptionAndPath()
    {
        QVERIFY(install());
        QCOMPARE(service().serviceDescription(), u"Sample server: registered by itself."_s);
        const RegistryKey key(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s + name);
        QCOMPARE(key.text(u"ImagePath"_s), std::optional<QString>(u'"' + m_server + u'"'));
    }

    void aStopWaitsUntilTheProcessHasEnded()
    {
        QVERIFY(install());
        QVERIFY(service().start());
        QVERIFY(m_machine->services().stop(name, 10s) == ServiceStop::Stopped);
        QVERIFY(QFile::remove(m_server)); // possible only when it does not run
    }

    void aServiceThatIsNotRunningRefusesTheStop()
    {
        QVERIFY(m_machine->services().stop(name, 10s) == ServiceStop::Refused);
        QVERIFY(install());
        QVERIFY(m_machine->services().stop(name, 10s) == ServiceStop::Refused);
    }

    void aServiceCanRefuseTheStop()
    {
        setBehaviour(".refuses-to-stop");
        QVERIFY(install());
        QVERIFY(service().start());
        QVERIFY(!service().stop());
        QVERIFY(m_machine->services().state(name) == ServiceState::Active);
    }

    void theWaitForAStopIsLimited()
    {
        setBehaviour(".hangs-at-stop");
        QVERIFY(install());
        QVERIFY(service().start());
        QElapsedTimer since;
        since.start();
        QVERIFY(m_machine->services().stop(name, 300ms) == ServiceStop::NotInTime);
        QVERIFY(since.elapsed() >= 300 && since.elapsed() < 5000);
        QVERIFY(m_machine->services().state(name) == ServiceState::Active);
    }

    void aRemovedServiceDisappearsWhenItStops()
    {
        QVERIFY(install());
        QVERIFY(service().start());
        QVERIFY(service().uninstall());
        QVERIFY(!install()); // its name is in use
        QVERIFY(service().stop());
        QTRY_VERIFY(!service().isInstalled());
        QVERIFY(install());
    }

    void aProgramThatFailsToRegisterReturnsFalse()
    {
        setBehaviour(".fails-to-register");
        QVERIFY(!install());
        QVERIFY(!service().isInstalled());
    }

    void aMissingProgramReturnsFalse()
    {
        QVERIFY(!ServiceController::install(*m_machine, m_server + u".missing"_s, QString(), QString()));
    }

    void everyRequestToAnUnknownServiceFails()
    {
        QVERIFY(!service().start());
        QVERIFY(!service().uninstall());
        QCOMPARE(service().serviceDescription(), QString());
    }

private:
    bool stopsOrIsStopped()
    {
        return m_machine->services().stop(name, 1s) == ServiceStop::Stopped ||
               m_machine->services().state(name) != ServiceState::Active;
    }

    NvxService service() { return NvxService(*m_machine); }
    bool install() { return NvxService::install(*m_machine, m_server, QString(), QString()); }
    void setBehaviour(const char *ending) const { writeFile(m_server + text(ending)); }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<NativeMachine> m_machine;
    QString m_server;
};

NVX_GUILESS_TEST(tst_service_control)
#include "tst_service_control.moc"
