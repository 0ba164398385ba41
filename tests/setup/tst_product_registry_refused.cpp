// The registry refuses every change: where it is a file, because its folder cannot be made or the disk is
// full.

#include "nvx_util/registry_key.h"
#include "setup/product_registry.h"
#include "setup/product_values.h"
#include "setup/setup_fixture.h"
#include "support/full_disk.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

class tst_product_registry_refused : public QObject
{
    Q_OBJECT

private slots:
    void noValueThatIsRefusedIsLoggedAndTheStepGoesOn()
    {
        SetupFixture fixture;
        writeFile(fixture.test.path(text("in the way")));
        fixture.test.setVariable("NVX_MACHINE", fixture.test.path(text("in the way/machine")));
        fixture.state.locale = text("de-DE");
        const RecordedDiagnostics diagnostics;
        QCOMPARE(updateRegistry(fixture.context(), RunMode::Install), 0);
        QCOMPARE(fixture.reporter.lines.filter(QRegularExpression(text("^1 "))), QStringList());
        QCOMPARE(diagnostics.list().size(), 7 + 7);
        QCOMPARE(diagnostics.list().first(), text("The registry refuses the value CurrentVersion of "
                                                  "HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX"));
        QCOMPARE(fixture.machine.calls.size(), 1); // the viewer is configured all the same
    }

    void noGroupThatStaysIsLoggedAndTheRemovalGoesOn()
    {
        SetupFixture fixture;
        const QString large(2 * FullDisk::mostBytes, QLatin1Char('x'));
        for (const char *group : {"\\WebServices", "\\Lumara"})
            QVERIFY(Nvx::Util::RegistryKey(userProductKey() + text(group)).setText(text("a"), text("b")));
        QVERIFY(Nvx::Util::RegistryKey(userProductKey()).setText(text("large"), large));
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk;
            QCOMPARE(updateRegistry(fixture.context(), RunMode::Uninstall), 0);
        }
        QCOMPARE(fixture.reporter.lines.filter(QRegularExpression(text("^1 "))), QStringList());
        const QString refused = text("The registry refuses to remove ") + userProductKey();
        QCOMPARE(diagnostics.list(),
                 QStringList({refused + text("\\WebServices"), refused + text("\\Lumara")}));
    }
};

NVX_GUILESS_TEST(tst_product_registry_refused)
#include "tst_product_registry_refused.moc"
