#include "engine/engine_fixture.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <array>

using Nvx::Util::RegistryKey;

namespace {

// Keeps what the page would show.
class RecordingBoxes : public LauncherBoxes
{
public:
    void setFound(Launcher launcher, bool found) override { ticked[place(launcher)] = found; }
    void setLabel(Launcher launcher, const QString &label) override { labels[place(launcher)] = label; }
    bool isTicked(Launcher launcher) const override { return ticked[place(launcher)]; }

    static size_t place(Launcher launcher) { return static_cast<size_t>(launcher); }

    std::array<bool, launcherCount> ticked{true, true, true, true, true, true, true, true};
    std::array<QString, launcherCount> labels;
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
        nx10().setText(text("UGII_BASE_DIR"), text("C:\\NX 10"));
    }

    void cleanup()
    {
        nx10().removeValue(text("UGII_BASE_DIR"));
        m_fixture.reset();
    }

    void theSearchKeepsWhatItFindsAndSetsTheBoxes()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingBoxes boxes;
        engine.setLauncherBoxes(&boxes);
        engine.searchCADPackages();
        QCOMPARE(engine.cadPackages().nxIndex, 5);
        QCOMPARE(engine.cadPackages().nxInstallDirs[5], text("C:\\NX 10"));
        for (int launcher = 0; launcher < launcherCount; ++launcher) {
            const bool isNx = launcher == static_cast<int>(Launcher::Nx);
            QCOMPARE(boxes.ticked[static_cast<size_t>(launcher)], isNx);
            QCOMPARE(boxes.labels[static_cast<size_t>(launcher)], isNx ? text("UGS NX 10.0") : QString());
        }
    }

    void theSearchIsLoggedFromItsFirstLineToItsLast()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        const qsizetype before = m_fixture->lines().size();
        engine.searchCADPackages();
        const QStringList lines = m_fixture->lines().mid(before);
        QCOMPARE(lines.first(), text("   0 Searching for CAD Packages"));
        QCOMPARE(lines.at(1), text("   0 Brevant lastversionrun="));
        QVERIFY(lines.contains(text("   0 Found UGNX=5")));
        QCOMPARE(lines.at(lines.size() - 2), text("   0 Found Spaceclaim=0"));
        QCOMPARE(lines.last(), text("   0 Finished searching for CAD Packages"));
    }

    void aSecondSearchForgetsWhatTheFirstHasFound()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingBoxes boxes;
        engine.setLauncherBoxes(&boxes);
        engine.searchCADPackages();
        nx10().removeValue(text("UGII_BASE_DIR"));
        engine.searchCADPackages();
        QCOMPARE(engine.cadPackages().nxIndex, -1);
        QCOMPARE(engine.cadPackages().nxInstallDirs[5], QString());
        QVERIFY(!boxes.isTicked(Launcher::Nx));
    }

    void theSearchIsSuppressed_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("searches");
        QTest::newRow("install") << text("-I") << true;
        QTest::newRow("uninstall") << text("-U") << true;
        QTest::newRow("no mode") << QString() << true;
        QTest::newRow("stop services") << text("-ST") << false;
        QTest::newRow("localisation") << text("-T") << false;
    }

    void theSearchIsSuppressed()
    {
        QFETCH(QString, options);
        cfg_utilitys &engine = m_fixture->start(options);
        const qsizetype before = m_fixture->lines().size();
        engine.searchCADPackages();
        QTEST(m_fixture->lines().size() > before, "searches");
        QTEST(engine.cadPackages().nxIndex == 5, "searches");
    }

    void theGuardsActOnTheMachineAndAnswerWhetherTheirQuestionWasDismissed()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I"));
        m_fixture->machine.running.add(text("C:\\xtop.exe"));
        m_fixture->machine.running.add(text("C:\\NVX 2017\\NVX.exe"));
        m_fixture->machine.answer = Nvx::Util::Answer::Dismissed;
        QVERIFY(engine.checkRunningCAD());
        QVERIFY(engine.checkRunningProduct(OnMatch::List));
        QCOMPARE(m_fixture->machine.boxes.size(), 2);
        m_fixture->machine.answer = Nvx::Util::Answer::Yes;
        QVERIFY(!engine.checkRunningCAD());
        QVERIFY(!engine.checkRunningProduct(OnMatch::Terminate));
        QCOMPARE(m_fixture->machine.running.ended.size(), 2);
        QCOMPARE(m_fixture->lines().last(), text("   0 Velmora NVX terminated"));
    }

private:
    static RegistryKey nx10()
    {
        return RegistryKey(text("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\10.0"));
    }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_cad)
#include "tst_cad.moc"
