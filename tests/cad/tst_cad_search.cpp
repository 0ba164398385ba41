#include "cad_case.h"
#include "registry_script.h"
#include "support/case_folders.h"
#include "support/test_class.h"

#include <QTest>

#include <algorithm>

class tst_cad_search : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseComesToWhatIsExpected_data() { addCaseRows(QStringLiteral(CASES)); }

    void everyCaseComesToWhatIsExpected()
    {
        QFETCH(QString, folder);
        const CadCase expected = CadCase::read(folder);
        TableRegistry registry;
        importScript(expected.script, registry);
        const CadSearch search = searchCadPackages(registry, QStringLiteral("Found "));
        QCOMPARE(described(search), expected.expected);
        if (!expected.log.isEmpty())
            QCOMPARE(wholeLog(search), expected.log);
    }

    void everyBoxIsSetOnceInTheOrderOfTheSearch()
    {
        const CadSearch search = searchCadPackages(TableRegistry(), QString());
        QList<Launcher> launchers;
        for (const LauncherBox &box : search.boxes)
            launchers << box.launcher;
        QCOMPARE(launchers, QList<Launcher>({Launcher::Brevant, Launcher::Creo, Launcher::SolidWorks,
                                             Launcher::Nx, Launcher::Tamsel, Launcher::TamselArchitecture,
                                             Launcher::TamselMep, Launcher::SpaceClaim}));
    }

    void theFoundWordIsThatOfTheLanguage()
    {
        const CadSearch search = searchCadPackages(TableRegistry(), QStringLiteral("Gefunden: "));
        QVERIFY(search.lines.contains(QStringLiteral("Gefunden: UGNX=-1")));
        QVERIFY(search.lines.filter(QStringLiteral("Found")).isEmpty());
    }

    void theProductCodeIsTheFirstInTheRegistrysOrder()
    {
        // Within a key the registry's order is the one in which values were added; those of sub-keys come
        // last.
        const auto components =
            QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel 2016\\Components");
        TableRegistry registry;
        registry.put(components + QStringLiteral("\\A"), QStringLiteral("ProductCode"), QStringLiteral("no"));
        registry.put(components + QStringLiteral("\\ProductCode"), QStringLiteral("a"),
                     QStringLiteral("late"));
        registry.put(components, QStringLiteral("z"), QStringLiteral("no"));
        registry.put(components, QStringLiteral("productcode"), QStringLiteral("first"));
        const CadSearch search = searchCadPackages(registry, QString());
        QVERIFY(search.lines.contains(QStringLiteral("Tamsel Product Code =first")));
    }
};

NVX_GUILESS_TEST(tst_cad_search)
#include "tst_cad_search.moc"
