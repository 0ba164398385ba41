#include "nvx_util/native_machine.h"
#include "nvx_util/service_control.h"
#include "support/test_class.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

/// A machine without a service control manager reports no services.
class tst_missing_services : public QObject
{
    Q_OBJECT

private slots:
    void everyRequestFails()
    {
        const QString name = u"NVX 2017 Server"_s;
        Nvx::Util::NativeMachine machine;
        QVERIFY(machine.services().state(name) == Nvx::Util::ServiceState::NotInstalled);
        QCOMPARE(machine.services().description(name), QString());
        QVERIFY(!machine.services().start(name));
        QVERIFY(machine.services().stop(name, 1s) == Nvx::Util::ServiceStop::Refused);
        QVERIFY(!machine.services().remove(name));
    }
};

NVX_GUILESS_TEST(tst_missing_services)
#include "tst_missing_services.moc"
