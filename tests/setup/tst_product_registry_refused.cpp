// The registry refuses every change: where it is a file, because its folder cannot be made.

#include "setup/product_registry.h"
#include "setup/setup_fixture.h"
#include "support/text.h"

#include <QTest>

class tst_product_registry_refused : public QObject
{
    Q_OBJECT

private slots:
    void everyValueThatIsRefusedIsLoggedAndTheStepGoesOn()
    {
        SetupFixture fixture;
        writeFile(fixture.test.path(text("in the way")));
        fixture.test.setVariable("NVX_MACHINE", fixture.test.path(text("in the way/machine")));
        fixture.state.locale = text("de-DE");
        QCOMPARE(updateRegistry(fixture.context(), RunMode::Install), 0);
        const QStringList refused = fixture.reporter.lines.filter(text("1 The registry refuses the value "));
        QCOMPARE(refused.size(), 7 + 7);
        QCOMPARE(refused.first(), text("1 The registry refuses the value CurrentVersion of "
                                       "HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX"));
        QCOMPARE(fixture.machine.calls.size(), 1); // the viewer is configured all the same
    }
};

QTEST_GUILESS_MAIN(tst_product_registry_refused)
#include "tst_product_registry_refused.moc"
