#include "cad/cad_systems.h"
#include "cad/registry_listing.h"
#include "engine/engine_fixture.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"

#include <QHash>
#include <QSet>
#include <QTest>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

using Nvx::Util::RegistryKey;

namespace {

const QString nx10Key = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\10.0"_s;

// Records how the search sets the check boxes of a page.
class RecordingCheckBoxes : public LauncherCheckBoxes
{
public:
    RecordingCheckBoxes()
    {
        for (const CadSystem &system : cadSystems())
            checked.insert(system.launcher);
    }

    void setFound(Launcher launcher, bool found) override
    {
        if (found)
            checked.insert(launcher);
        else
            checked.remove(launcher);
    }
    void setLabel(Launcher launcher, const QString &label) override { labels.insert(launcher, label); }
    bool isChecked(Launcher launcher) const override { return checked.contains(launcher); }

    QSet<Launcher> checked;
    QHash<Launcher, QString> labels;
};

} // namespace

class tst_cad : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        writeFile(m_fixture->installed("NVXSolver.exe"));
        nx10().setText(u"UGII_BASE_DIR"_s, u"C:\\NX 10"_s);
    }

    void cleanup()
    {
        nx10().removeValue(u"UGII_BASE_DIR"_s);
        m_fixture.reset();
    }

    void theSearchStoresItsResultsAndSetsTheCheckBoxes()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingCheckBoxes checkBoxes;
        engine.setLauncherCheckBoxes(&checkBoxes);
        engine.searchCADPackages();
        QCOMPARE(engine.cadPackages().nxIndex, 5);
        QCOMPARE(engine.cadPackages().nxInstalls, QList<NxInstall>({{5, u"C:\\NX 10"_s, nx10Key}}));
        QCOMPARE(checkBoxes.checked, QSet<Launcher>({Launcher::Nx}));
        const QHash<Launcher, QString> labels{{Launcher::Nx, u"UGS NX 10.0"_s}};
        QCOMPARE(checkBoxes.labels, labels);
    }

    void theLinesOfTheSearchAreLoggedBetweenItsFirstAndItsLast()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        const qsizetype before = m_fixture->lines().size();
        engine.searchCADPackages();
        QStringList expected{u"   0 Searching for CAD Packages"_s};
        const CadSearch search = searchCadPackages(MachineRegistryListing(), u"Found "_s);
        for (const QString &line : search.lines)
            expected << u"   0 "_s + line;
        expected << u"   0 Finished searching for CAD Packages"_s;
        QCOMPARE(m_fixture->lines().mid(before), expected);
        QVERIFY(expected.contains(u"   0 Found UGNX=5"_s));
    }

    void aSecondSearchDropsTheResultsOfTheFirst()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingCheckBoxes checkBoxes;
        engine.setLauncherCheckBoxes(&checkBoxes);
        engine.searchCADPackages();
        nx10().removeValue(u"UGII_BASE_DIR"_s);
        engine.searchCADPackages();
        QCOMPARE(engine.cadPackages().nxIndex, -1);
        QVERIFY(engine.cadPackages().nxInstalls.isEmpty());
        QVERIFY(!checkBoxes.isChecked(Launcher::Nx));
    }

    void theModeDecidesWhetherTheSearchRuns_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("searches");
        QTest::newRow("install") << u"-I"_s << true;
        QTest::newRow("uninstall") << u"-U"_s << true;
        QTest::newRow("no mode") << QString() << true;
        QTest::newRow("stop services") << u"-ST"_s << false;
        QTest::newRow("localisation") << u"-T"_s << false;
    }

    void theModeDecidesWhetherTheSearchRuns()
    {
        QFETCH(QString, options);
        cfg_utilitys &engine = m_fixture->start(options);
        const qsizetype before = m_fixture->lines().size();
        engine.searchCADPackages();
        QTEST(m_fixture->lines().size() > before, "searches");
        QTEST(engine.cadPackages().nxIndex == 5, "searches");
    }

    void theGuardsReturnWhetherTheirQuestionWasDismissed()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I"_s);
        m_fixture->machine.running.add(u"C:\\xtop.exe"_s);
        m_fixture->machine.running.add(u"C:\\NVX 2017\\NVX.exe"_s);
        m_fixture->machine.answer = Nvx::Util::BoxAnswer::Dismissed;
        QVERIFY(engine.checkRunningCAD());
        QVERIFY(engine.checkRunningProduct(OnMatch::List));
        QCOMPARE(m_fixture->machine.boxes.size(), 2);
        m_fixture->machine.answer = Nvx::Util::BoxAnswer::Yes;
        QVERIFY(!engine.checkRunningCAD());
        QVERIFY(!engine.checkRunningProduct(OnMatch::Terminate));
        QCOMPARE(m_fixture->machine.running.ended.size(), 2);
        QCOMPARE(m_fixture->lines().last(), u"   0 Velmora NVX terminated"_s);
    }

private:
    static RegistryKey nx10() { return RegistryKey(nx10Key); }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_cad)
#include "tst_cad.moc"
