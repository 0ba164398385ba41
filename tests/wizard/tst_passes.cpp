#include "cfg_wizard/start_up.h"
#include "engine/engine_fixture.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWizard>

namespace {

// Lines of a log without those about the programs that the run starts.
QStringList withoutPrograms(QStringList lines)
{
    static const QRegularExpression ofPrograms(
        text("^ +-?\\d+ (Command:|WorkDir:|Output:|  | output:|Removing:)"));
    lines.removeIf([](const QString &line) { return ofPrograms.match(line).hasMatch(); });
    return lines;
}

// Notices every window that is shown while it lives.
class ShownWindows : public QObject
{
public:
    ShownWindows() { QCoreApplication::instance()->installEventFilter(this); }

    bool any() const { return m_any; }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        m_any = m_any || (event->type() == QEvent::Show && widget && widget->isWindow());
        return false;
    }

private:
    bool m_any = false;
};

} // namespace

class tst_passes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        connect(&m_close, &QTimer::timeout, this, [] {
            if (QWizard *wizard = shownWizard())
                wizard->close();
        });
    }
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        for (const char *name : {"NVXSolver.exe", "NVXServer.exe"})
            writeFile(m_fixture->installed(name));
    }
    void cleanup()
    {
        m_close.stop();
        m_fixture.reset();
    }

    void aChangedLanguageBringsAnotherPass()
    {
        const cfg_utilitys &engine = m_fixture->start(text("-I"));
        QList<int> results{901, 901, 7, 0};
        const int result = runPasses(engine, [&] { return results.takeFirst(); });
        QCOMPARE(result, 7);
        QCOMPARE(results, QList<int>{0});
    }

    void anyOtherResultIsTheExitCode_data()
    {
        QTest::addColumn<int>("result");
        QTest::newRow("finished") << 0;
        QTest::newRow("one less") << 900;
        QTest::newRow("one more") << 902;
        QTest::newRow("negative") << -1;
    }

    void anyOtherResultIsTheExitCode()
    {
        QFETCH(int, result);
        const cfg_utilitys &engine = m_fixture->start(text("-I"));
        int passes = 0;
        QCOMPARE(runPasses(engine, [&] { return ++passes, result; }), result);
        QCOMPARE(passes, 1);
    }

    void aSilentRunIsPerformedAndEndsWithZero_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("line");
        QTest::newRow("install") << text("-I -S") << text("   0 Beginning Install");
        QTest::newRow("uninstall") << text("-U -S") << text("   0 Beginning UnInstall");
    }

    void aSilentRunIsPerformedAndEndsWithZero()
    {
        QFETCH(QString, options);
        QFETCH(QString, line);
        cfg_utilitys &engine = m_fixture->start(options);
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(m_fixture->lines().contains(line));
        QVERIFY(engine.state().runComplete);
        QVERIFY(m_fixture->machine.boxes.isEmpty());
    }

    void aSilentUninstallRemovesOldFilesAtItsEnd_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("stays");
        QTest::newRow("install") << text("-I -S -Lde-DE") << true;
        QTest::newRow("uninstall") << text("-U -S -Lde-DE") << false;
    }

    void aSilentUninstallRemovesOldFilesAtItsEnd()
    {
        QFETCH(QString, options);
        QFETCH(bool, stays);
        writeFile(m_fixture->installed("of an update.new"));
        QCOMPARE(runProgram(m_fixture->start(options)), 0);
        QCOMPARE(QFile::exists(m_fixture->installed("of an update.new")), stays);
        const QString complete =
            text("   0 The installation or update is complete. Click finish to continue.");
        QCOMPARE(m_fixture->lines().last() == complete, stays);
        QVERIFY(m_fixture->lines().contains(complete));
    }

    void theLogIsClosedAfterTheOldFiles()
    {
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        runProgram(engine);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.last(), text("   0 Remove: Report .pyc files"));
        engine.log(0, text("too late"));
        QCOMPARE(m_fixture->lines(), lines);
    }

    void oldFilesAreKeptWhenTheyShall()
    {
        writeFile(m_fixture->installed("of an update.new"));
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        engine.removeOldFiles(Nvx::Engine::OldFiles::Keep);
        QVERIFY(QFile::exists(m_fixture->installed("of an update.new")));
        engine.log(0, text("still open"));
        QCOMPARE(m_fixture->lines().last(), text("   0 still open"));
    }

    void stopServicesRemovesTheServersService()
    {
        cfg_utilitys &engine = m_fixture->start(text("-ST"));
        m_fixture->machine.service.current = Nvx::Util::ServiceState::Active;
        const auto before = m_fixture->lines().size();
        QCOMPARE(runProgram(engine), 0);
        const QStringList lines = m_fixture->lines().mid(before);
        QCOMPARE(lines.mid(0, 3),
                 QStringList({text("   0 CheckForRunningOstrade: silent=off terminate=off"),
                              text("   0 Stopping Services"), text("   0 uninstallServer ")}));
        QCOMPARE(withoutPrograms(lines.mid(3)), QStringList());
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::NotInstalled);
        QVERIFY(m_fixture->machine.boxes.isEmpty());
    }

    void runningProgramsAreLookedForBeforeCadSystemsAndBothBeforeTheRun()
    {
        m_fixture->machine.running.add(text("C:\\CAD\\xtop.exe"));
        m_fixture->machine.running.add(text("C:\\NVX 2017\\NVXMonitor.exe"));
        runProgram(m_fixture->start(text("-I -S")));
        const QStringList order{text("   0 Wildfire terminated"),
                                text("   0 CheckForRunningOstrade: silent=on terminate=off"),
                                text("   0 NVX 2017 Job Monitor terminated"),
                                text("   0 Searching for CAD Packages"),
                                text("   0 Finished searching for CAD Packages"),
                                text("   0 Beginning Install")};
        QStringList found;
        const QStringList lines = m_fixture->lines();
        for (const QString &line : lines) {
            if (order.contains(line))
                found << line;
        }
        QCOMPARE(found, order);
        QCOMPARE(m_fixture->machine.boxes.size(), 1); // about the CAD system, though the run is silent
    }

    void everyRunLooksForRunningProgramsAndOnlyThoseThatInstallOrRemoveForCadSystems_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("listings"); // one more where the server is looked for
        QTest::addColumn<int>("searches");
        QTest::newRow("silent install") << text("-I -S") << 3 << 1;
        QTest::newRow("silent uninstall") << text("-U -S") << 3 << 1;
        QTest::newRow("install") << text("-I") << 2 << 1;
        QTest::newRow("uninstall") << text("-U") << 2 << 1;
        QTest::newRow("no mode") << QString() << 2 << 1;
        QTest::newRow("stop services") << text("-ST") << 3 << 0;
        QTest::newRow("localisation") << text("-T") << 2 << 0;
    }

    void everyRunLooksForRunningProgramsAndOnlyThoseThatInstallOrRemoveForCadSystems()
    {
        QFETCH(QString, options);
        closeSoon();
        runProgram(m_fixture->start(options));
        const QStringList lines = m_fixture->lines();
        QTEST(int(m_fixture->machine.running.limits.size()), "listings");
        QCOMPARE(lines.filter(text("CheckForRunningOstrade")).size(), 1);
        QTEST(int(lines.count(text("   0 Searching for CAD Packages"))), "searches");
    }

    void whatTheUserAnswersAboutRunningProgramsStopsNothing()
    {
        m_fixture->machine.running.add(text("C:\\CAD\\xtop.exe"));
        m_fixture->machine.answer = Nvx::Util::Answer::Dismissed;
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(engine.state().runComplete);
        QVERIFY(m_fixture->machine.running.ended.isEmpty());
    }

    void theLocalizationRunEndsWithZeroAndItsLine()
    {
        writeFile(m_fixture->test.installDir() + text("/localization.xml"), "<localization/>");
        QCOMPARE(runProgram(m_fixture->start(text("-T"))), 0);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.last(), text("   0 Localization script finishes cool"));
        QCOMPARE(lines.at(lines.size() - 2), text("   0 Ribbon2D copied cool"));
        QVERIFY(lines.contains(text("   1 There is no folder of sources, nothing is translated")));
        QVERIFY(!lines.contains(text("   0 Searching for CAD Packages")));
    }

    void theLocalizationToolIsMadeOnce()
    {
        writeFile(m_fixture->test.installDir() + text("/localization.xml"), "<localization/>");
        cfg_utilitys &engine = m_fixture->start(text("-T"));
        QVERIFY(!engine.getLtool());
        engine.initLocalizationTool();
        const auto *tool = engine.getLtool();
        QVERIFY(tool);
        engine.initLocalizationTool();
        QCOMPARE(engine.getLtool(), tool);
    }

    void aRunWithoutAModeBecomesAnInstall()
    {
        cfg_utilitys &engine = m_fixture->start(QString());
        QVERIFY(engine.state().runMode == RunMode::NotGiven);
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(engine.state().runMode == RunMode::Install);
    }

    void modesWithoutAWindowShowNone_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("shown");
        QTest::newRow("silent install") << text("-I -S") << false;
        QTest::newRow("silent uninstall") << text("-U -S") << false;
        QTest::newRow("silent uninstall, the other way round") << text("-S -U") << false;
        QTest::newRow("stop services") << text("-ST") << false;
        QTest::newRow("localisation") << text("-T") << false;
        QTest::newRow("install") << text("-I") << true;
        QTest::newRow("uninstall") << text("-U") << true;
        QTest::newRow("silent without a mode") << text("-S") << true;
        QTest::newRow("no mode") << QString() << true;
    }

    void modesWithoutAWindowShowNone()
    {
        QFETCH(QString, options);
        cfg_utilitys &engine = m_fixture->start(options);
        const ShownWindows windows;
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QTEST(windows.any(), "shown");
    }

    void afterNoAtTheUsageTheWizardIsShown_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("shown");
        const int yes = int(Nvx::Util::Answer::Yes);
        const int no = int(Nvx::Util::Answer::No);
        QTest::newRow("uninstall") << text("-U -X") << no << true;
        QTest::newRow("silent uninstall") << text("-U -S -X") << no << true;
        QTest::newRow("silent install") << text("-I -S -X") << no << true;
        QTest::newRow("closed") << text("-U -S -X") << int(Nvx::Util::Answer::Dismissed) << true;
        QTest::newRow("Yes stays silent") << text("-U -S -X") << yes << false;
        QTest::newRow("stop services has no window") << text("-ST -X") << no << false;
    }

    void afterNoAtTheUsageTheWizardIsShown()
    {
        QFETCH(QString, options);
        QFETCH(int, answer);
        QFETCH(bool, shown);
        m_fixture->machine.answer = static_cast<Nvx::Util::Answer>(answer);
        cfg_utilitys &engine = m_fixture->start(options);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        const ShownWindows windows;
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(windows.any(), shown);
        QVERIFY(!shown || !engine.state().runComplete);
    }

    void aWindowThatIsClosedEndsTheProgramWithZero()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I"));
        m_fixture->machine.calls.clear();
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(!engine.state().runComplete);
        QVERIFY(m_fixture->machine.calls.isEmpty());
    }

    void finishEndsTheProgramWithZero()
    {
        cfg_utilitys &engine = m_fixture->start(text("-U"));
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            const QWizard *wizard = shownWizard();
            if (wizard && engine.state().runComplete)
                wizard->button(QWizard::FinishButton)->click();
        });
        poll.start(50);
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_fixture->lines().last(), text("   0 Program exiting"));
    }

private:
    // Closes the wizard soon after it is shown.
    void closeSoon() { m_close.start(200); }

    static QWizard *shownWizard()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            auto *wizard = qobject_cast<QWizard *>(window);
            if (wizard && wizard->isVisible())
                return wizard;
        }
        return nullptr;
    }

    QTimer m_close;
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_passes)
#include "tst_passes.moc"
