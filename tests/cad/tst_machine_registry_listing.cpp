#include "cad/machine_registry_listing.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::RegistryKey;

namespace {

const QString scratch = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\Listing scratch");

} // namespace

class tst_machine_registry_listing : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreListedByLevelsThoseOfAKeyFirst()
    {
        const TestMachine machine;
        QVERIFY(RegistryKey(scratch).removeWhole()); // a Windows machine keeps what the last run has left
        RegistryKey(scratch + text("\\b\\c")).setText(text("deep"), text("4"));
        RegistryKey(scratch + text("\\b")).setText(text("middle"), text("3"));
        RegistryKey(scratch + text("\\a")).setText(QString(), text("2"));
        RegistryKey(scratch).setText(text("z/y"), text("1"));
        QStringList listed;
        const QList<ListedValue> values = MachineRegistryListing().valuesBelow(scratch);
        for (const ListedValue &value : values)
            listed << value.name + text("=") + value.text;
        QCOMPARE(listed,
                 QStringList({text("z\\y=1"), text("a/.=2"), text("b/middle=3"), text("b/c/deep=4")}));
    }

    void aMissingKeyHoldsNothing()
    {
        const TestMachine machine;
        const MachineRegistryListing listing;
        QVERIFY(listing.valuesBelow(scratch + text("\\Missing")).isEmpty());
        QCOMPARE(listing.valueOf(scratch + text("\\Missing"), text("x")), QString());
    }

    void aValueIsReadByItsNameInAnyCase()
    {
        const TestMachine machine;
        RegistryKey(scratch).setText(text("InstallLocation"), text("C:\\x"));
        QCOMPARE(MachineRegistryListing().valueOf(scratch, text("INSTALLLOCATION")), text("C:\\x"));
    }
};

NVX_GUILESS_TEST(tst_machine_registry_listing)
#include "tst_machine_registry_listing.moc"
