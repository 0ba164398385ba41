// A registry that refuses every change. Where the registry is a file, its folder cannot be created or the
// disk is full.

#include "nvx_util/registry_key.h"
#include "setup/product_registry.h"
#include "setup/product_values.h"
#include "setup/setup_fixture.h"
#include "support/full_disk.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_product_registry_refused : public QObject
{
    Q_OBJECT

private slots:
    void aRefusedValueIsADiagnosticWarningAndTheStepContinues()
    {
        SetupFixture fixture;
        writeFile(fixture.test.path(u"a file"_s));
        fixture.test.setVariable("NVX_MACHINE", fixture.test.path(u"a file/machine"_s));
        fixture.state.locale = u"de-DE"_s;
        const RecordedDiagnostics diagnostics;
        QCOMPARE(updateRegistry(fixture.context(), RunMode::Install), 0);
        QCOMPARE(fixture.reporter.lines.filter(QRegularExpression(u"^1 "_s)), QStringList());
        QCOMPARE(diagnostics.list().size(), 7 + 7);
        QCOMPARE(diagnostics.list().first(), u"The registry refuses the value CurrentVersion of "
                                             "HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX"_s);
        QCOMPARE(fixture.machine.calls.size(), 1); // the viewer is configured nevertheless
    }

    void aRefusedRemovalIsADiagnosticWarningAndTheStepContinues()
    {
        SetupFixture fixture;
        const QString large(2 * FullDisk::maximumBytes, u'x');
        for (const char *group : {"\\WebServices", "\\Lumara"})
            QVERIFY(Nvx::Util::RegistryKey(userProductKey() + text(group)).setText(u"a"_s, u"b"_s));
        QVERIFY(Nvx::Util::RegistryKey(userProductKey()).setText(u"large"_s, large));
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk;
            QCOMPARE(updateRegistry(fixture.context(), RunMode::Uninstall), 0);
        }
        QCOMPARE(fixture.reporter.lines.filter(QRegularExpression(u"^1 "_s)), QStringList());
        const QString refused = u"The registry refuses to remove "_s + userProductKey();
        QCOMPARE(diagnostics.list(), QStringList({refused + u"\\WebServices"_s, refused + u"\\Lumara"_s}));
    }
};

NVX_GUILESS_TEST(tst_product_registry_refused)
#include "tst_product_registry_refused.moc"
