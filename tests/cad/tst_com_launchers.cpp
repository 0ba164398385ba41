#include "cad/cad_systems.h"
#include "launcher_fixture.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

struct ComLauncher
{
    Launcher launcher;
    QLatin1String title;
    const char *fileName;
};

constexpr ComLauncher brevant{Launcher::Brevant, "Configure Brevant"_L1,
                              "Launchers/Brevant/NVX_2017_Brevant.dll"};
constexpr ComLauncher solidWorks{Launcher::SolidWorks, "SolidWorks"_L1,
                                 "Launchers/SolidWorks/NVX_2017_SolidWorks.dll"};

} // namespace

Q_DECLARE_METATYPE(ComLauncher)

class tst_com_launchers : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<LauncherFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void anInstallUnregistersAndRegistersTheLibrary_data() { both(); }
    void anInstallUnregistersAndRegistersTheLibrary()
    {
        QFETCH(const ComLauncher, tested);
        m_fixture->check(tested.launcher);
        install(tested, RunMode::Install);
        const QString library = m_fixture->installed(tested.fileName);
        QCOMPARE(arguments(), QList<QStringList>({{u"-u"_s, u"-s"_s, library}, {u"-s"_s, library}}));
        QCOMPARE(m_fixture->takeLines(), QStringList{u"progress 0 "_s + tested.title} +
                                             runLines(u"regsvr32 -u -s "_s + library) +
                                             runLines(u"regsvr32 -s "_s + library));
    }

    void aRemovalOnlyUnregistersIt_data()
    {
        QTest::addColumn<ComLauncher>("tested");
        QTest::addColumn<RunMode>("mode");
        for (const auto &[name, mode] : removingModes) {
            QTest::addRow("Brevant, %s", name) << brevant << mode;
            QTest::addRow("SolidWorks, %s", name) << solidWorks << mode;
        }
    }

    void aRemovalOnlyUnregistersIt()
    {
        QFETCH(const ComLauncher, tested);
        QFETCH(const RunMode, mode);
        m_fixture->check(tested.launcher);
        install(tested, mode);
        const QString library = m_fixture->installed(tested.fileName);
        QCOMPARE(arguments(), QList<QStringList>({{u"-u"_s, u"-s"_s, library}}));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList{u"progress 0 "_s + tested.title} + runLines(u"regsvr32 -u -s "_s + library));
    }

    void theSystemsProgramRunsInTheInstallDir_data() { both(); }
    void theSystemsProgramRunsInTheInstallDir()
    {
        QFETCH(const ComLauncher, tested);
        m_fixture->check(tested.launcher);
        install(tested, RunMode::Uninstall);
        const Nvx::Util::ProgramCall call = m_fixture->machine.calls.first();
        QVERIFY(call.place == Nvx::Util::ProgramCall::Place::SystemFolder);
        QCOMPARE(call.program, u"regsvr32"_s);
        QCOMPARE(call.workFolder, m_fixture->state.installDir);
        QCOMPARE(call.timeoutMs, 30000);
    }

    void aFailedRegistrationIsOnlyLogged()
    {
        m_fixture->check(Launcher::Brevant);
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 3, "no such entry"};
        install(brevant, RunMode::Install);
        QCOMPARE(m_fixture->machine.calls.size(), 2);
        QCOMPARE(m_fixture->takeLines().filter(u"3 Output:"_s).size(), 2);
    }

private:
    void install(const ComLauncher &tested, RunMode mode)
    {
        cadSystem(tested.launcher).install(m_fixture->step(mode));
    }

    static void both()
    {
        QTest::addColumn<ComLauncher>("tested");
        QTest::newRow("Brevant") << brevant;
        QTest::newRow("SolidWorks") << solidWorks;
    }

    QList<QStringList> arguments() const
    {
        QList<QStringList> found;
        for (const Nvx::Util::ProgramCall &call : m_fixture->machine.calls)
            found << call.arguments;
        return found;
    }

    QStringList runLines(const QString &command) const
    {
        return {u"0 Command:"_s + command, u"0 WorkDir:"_s + m_fixture->state.installDir, u"0 Output:"_s};
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_com_launchers)
#include "tst_com_launchers.moc"
