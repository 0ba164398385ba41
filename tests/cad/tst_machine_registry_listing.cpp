#include "cad/registry_listing.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

using Nvx::Util::RegistryKey;

namespace {

const QString scratch = u"HKEY_CURRENT_USER\\Software\\Velmora\\Listing scratch"_s;

} // namespace

class tst_machine_registry_listing : public QObject
{
    Q_OBJECT

private slots:
    void valuesOfAKeyAreListedBeforeThoseOfItsSubKeys()
    {
        const TestMachine machine;
        QVERIFY(RegistryKey(scratch).removeWhole()); // may be left over from the last run
        RegistryKey(scratch + u"\\b\\c"_s).setText(u"deep"_s, u"4"_s);
        RegistryKey(scratch + u"\\b"_s).setText(u"middle"_s, u"3"_s);
        RegistryKey(scratch + u"\\a"_s).setText(QString(), u"2"_s);
        RegistryKey(scratch).setText(u"z/y"_s, u"1"_s);
        QStringList listed;
        const QList<ListedValue> values = MachineRegistryListing().valuesBelow(scratch);
        for (const ListedValue &value : values)
            listed << value.name + u"="_s + value.text;
        QCOMPARE(listed, QStringList({u"z\\y=1"_s, u"a/.=2"_s, u"b/middle=3"_s, u"b/c/deep=4"_s}));
    }

    void aMissingKeyIsEmpty()
    {
        const TestMachine machine;
        const MachineRegistryListing listing;
        QVERIFY(listing.valuesBelow(scratch + u"\\Missing"_s).isEmpty());
        QCOMPARE(listing.valueOf(scratch + u"\\Missing"_s, u"x"_s), QString());
    }

    void valueNamesAreCaseInsensitive()
    {
        const TestMachine machine;
        RegistryKey(scratch).setText(u"InstallLocation"_s, u"C:\\x"_s);
        QCOMPARE(MachineRegistryListing().valueOf(scratch, u"INSTALLLOCATION"_s), u"C:\\x"_s);
    }
};

NVX_GUILESS_TEST(tst_machine_registry_listing)
#include "tst_machine_registry_listing.moc"
