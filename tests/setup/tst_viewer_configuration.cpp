#include "setup/setup_fixture.h"
#include "setup/viewer_configuration.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

class tst_viewer_configuration : public QObject
{
    Q_OBJECT

private slots:
    void onlyAnInstallHandsTheOptionOver_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("install") << int(RunMode::Install) << QStringList(text("-i"));
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << QStringList();
        QTest::newRow("stop services") << int(RunMode::StopServices) << QStringList();
    }

    void onlyAnInstallHandsTheOptionOver()
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
        QCOMPARE(fixture.reporter.lines.mid(0, 2),
                 QStringList({text("0 Running NVX 3D-ViewerConfig."),
                              text("0 Command:") + fixture.installed("NVX Viewer/NVXViewerConfig.exe") +
                                  text(" -i")}));
    }

    void aViewerThatFailsOrIsMissingStopsNothing_data()
    {
        using Outcome = Nvx::Util::ProgramResult::Outcome;
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("line");
        QTest::newRow("missing") << int(Outcome::NotStarted) << text("-2 Output:");
        QTest::newRow("failing") << int(Outcome::Exited) << text("3 Output:");
        QTest::newRow("hanging") << int(Outcome::TimedOut) << text("-1 Output:");
    }

    void aViewerThatFailsOrIsMissingStopsNothing()
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
