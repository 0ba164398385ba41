#include "cad/com_launchers.h"
#include "launcher_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

namespace {

struct ComLauncher
{
    void (*step)(const StepContext &, const LauncherBoxes &, RunMode);
    Launcher launcher;
    const char *title;
    const char *dll;
};

const ComLauncher brevant{installBrevantLauncher, Launcher::Brevant, "Configure Brevant",
                          "Launchers/Brevant/NVX_2017_Brevant.dll"};
const ComLauncher solidWorks{installSolidWorksLauncher, Launcher::SolidWorks, "SolidWorks",
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
        QFETCH(const ComLauncher, of);
        m_fixture->tick(of.launcher);
        of.step(m_fixture->context(), m_fixture->boxes, RunMode::Install);
        const QString library = m_fixture->installed(of.dll);
        QCOMPARE(arguments(), QList<QStringList>({{text("-u"), text("-s"), library}, {text("-s"), library}}));
        QCOMPARE(m_fixture->takeLines(), QStringList{text("progress 0 ") + text(of.title)} +
                                             runLines(text("regsvr32 -u -s ") + library) +
                                             runLines(text("regsvr32 -s ") + library));
    }

    void aRemovalOnlyUnregistersIt_data()
    {
        QTest::addColumn<ComLauncher>("of");
        QTest::addColumn<RunMode>("mode");
        for (const auto &[name, mode] : removingModes) {
            QTest::addRow("Brevant, %s", name) << brevant << mode;
            QTest::addRow("SolidWorks, %s", name) << solidWorks << mode;
        }
    }

    void aRemovalOnlyUnregistersIt()
    {
        QFETCH(const ComLauncher, of);
        QFETCH(const RunMode, mode);
        m_fixture->tick(of.launcher);
        of.step(m_fixture->context(), m_fixture->boxes, mode);
        const QString library = m_fixture->installed(of.dll);
        QCOMPARE(arguments(), QList<QStringList>({{text("-u"), text("-s"), library}}));
        QCOMPARE(m_fixture->takeLines(), QStringList{text("progress 0 ") + text(of.title)} +
                                             runLines(text("regsvr32 -u -s ") + library));
    }

    void theSystemsOwnProgramIsRunInTheInstallDir_data() { both(); }
    void theSystemsOwnProgramIsRunInTheInstallDir()
    {
        QFETCH(const ComLauncher, of);
        m_fixture->tick(of.launcher);
        of.step(m_fixture->context(), m_fixture->boxes, RunMode::Uninstall);
        const Nvx::Util::ProgramCall call = m_fixture->machine.calls.first();
        QVERIFY(call.place == Nvx::Util::ProgramCall::Place::SystemFolder);
        QCOMPARE(call.program, text("regsvr32"));
        QCOMPARE(call.workFolder, m_fixture->state.installDir);
        QCOMPARE(call.timeoutMs, 30000);
    }

    void withoutItsBoxNothingHappens_data() { both(); }
    void withoutItsBoxNothingHappens()
    {
        QFETCH(const ComLauncher, of);
        for (int launcher = 0; launcher < launcherCount; ++launcher)
            m_fixture->boxes.setFound(static_cast<Launcher>(launcher), true);
        m_fixture->boxes.setFound(of.launcher, false);
        of.step(m_fixture->context(), m_fixture->boxes, RunMode::Install);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QVERIFY(m_fixture->takeLines().isEmpty());
    }

    void aRefusalIsOnlyLogged()
    {
        m_fixture->tick(Launcher::Brevant);
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 3, "no such entry"};
        installBrevantLauncher(m_fixture->context(), m_fixture->boxes, RunMode::Install);
        QCOMPARE(m_fixture->machine.calls.size(), 2);
        QCOMPARE(m_fixture->takeLines().filter(text("3 Output:")).size(), 2);
    }

private:
    static void both()
    {
        QTest::addColumn<ComLauncher>("of");
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
        return {text("0 Command:") + command, text("0 WorkDir:") + m_fixture->state.installDir,
                text("0 Output:")};
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_com_launchers)
#include "tst_com_launchers.moc"
