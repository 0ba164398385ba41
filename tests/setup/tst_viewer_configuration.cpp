#include "setup/product_registry.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_viewer_configuration : public QObject
{
    Q_OBJECT

private slots:
    void onlyAnInstallPassesTheOption_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("install") << int(RunMode::Install) << QStringList(u"-i"_s);
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << QStringList();
        QTest::newRow("stop services") << int(RunMode::StopServices) << QStringList();
    }

    void onlyAnInstallPassesTheOption()
    {
        QFETCH(int, mode);
        SetupFixture fixture;
        QCOMPARE(configureViewer(fixture.context(), static_cast<RunMode>(mode)), 0);
        QCOMPARE(fixture.machine.calls.size(), 1);
        const Nvx::Util::ProgramCall call = fixture.machine.calls.first();
        QVERIFY(call.place == Nvx::Util::ProgramCall::Place::Path);
        QCOMPARE(call.program, fixture.installed("NVX Viewer/NVXViewerConfig.exe"));
        QTEST(call.arguments, "arguments");
        QCOMPARE(call.workFolder, fixture.state.installDir);
        QCOMPARE(call.timeoutMs, 30000);
    }

    void theRunIsLogged()
    {
        SetupFixture fixture;
        configureViewer(fixture.context(), RunMode::Install);
        QCOMPARE(
            fixture.reporter.lines.mid(0, 2),
            QStringList({u"0 Running NVX 3D-ViewerConfig."_s,
                         u"0 Command:"_s + fixture.installed("NVX Viewer/NVXViewerConfig.exe") + u" -i"_s}));
    }

    void aViewerThatFailsDoesNotStopTheStep_data()
    {
        using Outcome = Nvx::Util::ProgramResult::Outcome;
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("line");
        QTest::newRow("missing") << int(Outcome::NotStarted) << u"-2 Output:"_s;
        QTest::newRow("failing") << int(Outcome::Exited) << u"3 Output:"_s;
        QTest::newRow("hanging") << int(Outcome::TimedOut) << u"-1 Output:"_s;
    }

    void aViewerThatFailsDoesNotStopTheStep()
    {
        QFETCH(int, outcome);
        QFETCH(QString, line);
        SetupFixture fixture;
        fixture.machine.programResult = {static_cast<Nvx::Util::ProgramResult::Outcome>(outcome), 3, {}};
        QCOMPARE(configureViewer(fixture.context(), RunMode::Install), 0);
        QVERIFY(fixture.reporter.lines.contains(line));
    }
};

NVX_GUILESS_TEST(tst_viewer_configuration)
#include "tst_viewer_configuration.moc"
