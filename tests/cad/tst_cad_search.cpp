#include "cad/cad_systems.h"
#include "cad_case.h"
#include "registry_script.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

class tst_cad_search : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseHasTheExpectedResult_data() { addCaseRows(inCheckout(CASES)); }

    void everyCaseHasTheExpectedResult()
    {
        QFETCH(QString, folder);
        const CadCase expected = CadCase::read(folder);
        TableRegistry registry;
        importScript(expected.script, registry);
        const CadSearch search = searchCadPackages(registry, u"Found "_s);
        QCOMPARE(described(search), expected.expected);
        if (!expected.log.isEmpty())
            QCOMPARE(wholeLog(search), expected.log);
    }

    void everyCheckBoxIsSetOnceInTheOrderOfTheTable()
    {
        const CadSearch search = searchCadPackages(TableRegistry(), QString());
        QList<Launcher> set;
        for (const CheckBoxState &state : search.checkBoxes)
            set << state.launcher;
        QList<Launcher> all;
        for (const CadSystem &system : cadSystems())
            all << system.launcher;
        QCOMPARE(set, all);
    }

    void theFoundWordIsInTheInterfaceLanguage()
    {
        const CadSearch search = searchCadPackages(TableRegistry(), u"Gefunden: "_s);
        QVERIFY(search.lines.contains(u"Gefunden: UGNX=-1"_s));
        QVERIFY(search.lines.filter(u"Found"_s).isEmpty());
    }

    void theProductCodeIsTheFirstInTheRegistrysOrder()
    {
        // Values of one key are listed in the order in which they were added, those of sub-keys last.
        const QString components =
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel 2016\\Components"_s;
        TableRegistry registry;
        registry.put(components + u"\\A"_s, u"ProductCode"_s, u"no"_s);
        registry.put(components + u"\\ProductCode"_s, u"a"_s, u"late"_s);
        registry.put(components, u"z"_s, u"no"_s);
        registry.put(components, u"productcode"_s, u"first"_s);
        const CadSearch search = searchCadPackages(registry, QString());
        QVERIFY(search.lines.contains(u"Tamsel Product Code =first"_s));
    }
};

NVX_GUILESS_TEST(tst_cad_search)
#include "tst_cad_search.moc"
