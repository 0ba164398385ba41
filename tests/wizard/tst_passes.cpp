#include "cfg_wizard/start_up.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "wizard/wizard_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWizard>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Wizard::runPasses;
using Nvx::Wizard::runProgram;

namespace {

// The lines of a log except those about external programs.
QStringList withoutPrograms(QStringList lines)
{
    static const QRegularExpression ofPrograms(
        u"^ +-?\\d+ (Command:|WorkDir:|Output:|  | output:|Removing:)"_s);
    lines.removeIf([](const QString &line) { return ofPrograms.match(line).hasMatch(); });
    return lines;
}

// Records every window that is shown during its lifetime.
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

    void aChangedLanguageStartsAnotherPass()
    {
        const cfg_utilitys &engine = m_fixture->start(u"-I"_s);
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
        const cfg_utilitys &engine = m_fixture->start(u"-I"_s);
        int passes = 0;
        QCOMPARE(runPasses(engine, [&] { return ++passes, result; }), result);
        QCOMPARE(passes, 1);
    }

    void aSilentRunIsPerformedAndEndsWithZero_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("line");
        QTest::newRow("install") << u"-I -S"_s << u"   0 Beginning Install"_s;
        QTest::newRow("uninstall") << u"-U -S"_s << u"   0 Beginning UnInstall"_s;
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
        QTest::newRow("install") << u"-I -S -Lde-DE"_s << true;
        QTest::newRow("uninstall") << u"-U -S -Lde-DE"_s << false;
    }

    void aSilentUninstallRemovesOldFilesAtItsEnd()
    {
        QFETCH(QString, options);
        QFETCH(bool, stays);
        writeFile(m_fixture->installed("of an update.new"));
        QCOMPARE(runProgram(m_fixture->start(options)), 0);
        QCOMPARE(QFile::exists(m_fixture->installed("of an update.new")), stays);
        const QString complete = u"   0 The installation or update is complete. Click finish to continue."_s;
        QCOMPARE(m_fixture->lines().last() == complete, stays);
        QVERIFY(m_fixture->lines().contains(complete));
    }

    void theLogIsClosedAfterTheOldFiles()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        runProgram(engine);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.last(), u"   0 Remove: Report .pyc files"_s);
        engine.log(0, u"too late"_s);
        QCOMPARE(m_fixture->lines(), lines);
    }

    void oldFilesStayIfTheyAreToBeKept()
    {
        writeFile(m_fixture->installed("of an update.new"));
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        engine.removeOldFiles(Nvx::Engine::OldFiles::Keep);
        QVERIFY(QFile::exists(m_fixture->installed("of an update.new")));
        engine.log(0, u"still open"_s);
        QCOMPARE(m_fixture->lines().last(), u"   0 still open"_s);
    }

    void stopServicesRemovesTheServersService()
    {
        cfg_utilitys &engine = m_fixture->start(u"-ST"_s);
        m_fixture->machine.service.current = Nvx::Util::ServiceState::Active;
        const auto before = m_fixture->lines().size();
        QCOMPARE(runProgram(engine), 0);
        const QStringList lines = m_fixture->lines().mid(before);
        QCOMPARE(lines.mid(0, 3), QStringList({u"   0 CheckForRunningOstrade: silent=off terminate=off"_s,
                                               u"   0 Stopping Services"_s, u"   0 uninstallServer "_s}));
        QCOMPARE(withoutPrograms(lines.mid(3)), QStringList());
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::NotInstalled);
        QVERIFY(m_fixture->machine.boxes.isEmpty());
    }

    void runningProgramsAreSearchedBeforeCadSystemsAndBothBeforeTheRun()
    {
        m_fixture->machine.running.add(u"C:\\CAD\\xtop.exe"_s);
        m_fixture->machine.running.add(u"C:\\NVX 2017\\NVXMonitor.exe"_s);
        runProgram(m_fixture->start(u"-I -S"_s));
        const QStringList order{u"   0 Wildfire terminated"_s,
                                u"   0 CheckForRunningOstrade: silent=on terminate=off"_s,
                                u"   0 NVX 2017 Job Monitor terminated"_s,
                                u"   0 Searching for CAD Packages"_s,
                                u"   0 Finished searching for CAD Packages"_s,
                                u"   0 Beginning Install"_s};
        QStringList found;
        const QStringList lines = m_fixture->lines();
        for (const QString &line : lines) {
            if (order.contains(line))
                found << line;
        }
        QCOMPARE(found, order);
        QCOMPARE(m_fixture->machine.boxes.size(), 1); // about the CAD system, although the run is silent
    }

    void everyRunLooksForRunningProgramsButOnlyInstallAndRemovalForCadSystems_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("listings"); // one more if the server is looked for
        QTest::addColumn<int>("searches");
        QTest::newRow("silent install") << u"-I -S"_s << 3 << 1;
        QTest::newRow("silent uninstall") << u"-U -S"_s << 3 << 1;
        QTest::newRow("install") << u"-I"_s << 2 << 1;
        QTest::newRow("uninstall") << u"-U"_s << 2 << 1;
        QTest::newRow("no mode") << QString() << 2 << 1;
        QTest::newRow("stop services") << u"-ST"_s << 3 << 0;
        QTest::newRow("localisation") << u"-T"_s << 2 << 0;
    }

    void everyRunLooksForRunningProgramsButOnlyInstallAndRemovalForCadSystems()
    {
        QFETCH(QString, options);
        closeSoon();
        runProgram(m_fixture->start(options));
        const QStringList lines = m_fixture->lines();
        QTEST(int(m_fixture->machine.running.limits.size()), "listings");
        QCOMPARE(lines.filter(u"CheckForRunningOstrade"_s).size(), 1);
        QTEST(int(lines.count(u"   0 Searching for CAD Packages"_s)), "searches");
    }

    void noAnswerAboutRunningProgramsStopsTheRun()
    {
        m_fixture->machine.running.add(u"C:\\CAD\\xtop.exe"_s);
        m_fixture->machine.answer = Nvx::Util::BoxAnswer::Dismissed;
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(engine.state().runComplete);
        QVERIFY(m_fixture->machine.running.ended.isEmpty());
    }

    void theLocalizationRunEndsWithZeroAndItsLine()
    {
        writeFile(m_fixture->test.installDir() + u"/localization.xml"_s, "<localization/>");
        QCOMPARE(runProgram(m_fixture->start(u"-T"_s)), 0);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.last(), u"   0 Localization script finishes cool"_s);
        QCOMPARE(lines.at(lines.size() - 2), u"   0 Ribbon2D copied cool"_s);
        QVERIFY(lines.contains(u"   1 No source folder was found; nothing is translated"_s));
        QVERIFY(!lines.contains(u"   0 Searching for CAD Packages"_s));
    }

    void theLocalizationToolIsCreatedOnce()
    {
        writeFile(m_fixture->test.installDir() + u"/localization.xml"_s, "<localization/>");
        cfg_utilitys &engine = m_fixture->start(u"-T"_s);
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
        QTest::newRow("silent install") << u"-I -S"_s << false;
        QTest::newRow("silent uninstall") << u"-U -S"_s << false;
        QTest::newRow("silent uninstall, options swapped") << u"-S -U"_s << false;
        QTest::newRow("stop services") << u"-ST"_s << false;
        QTest::newRow("localisation") << u"-T"_s << false;
        QTest::newRow("install") << u"-I"_s << true;
        QTest::newRow("uninstall") << u"-U"_s << true;
        QTest::newRow("silent without a mode") << u"-S"_s << true;
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

    void afterNoInTheUsageBoxTheWizardIsShown_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("shown");
        const int yes = int(Nvx::Util::BoxAnswer::Yes);
        const int no = int(Nvx::Util::BoxAnswer::No);
        QTest::newRow("uninstall") << u"-U -X"_s << no << true;
        QTest::newRow("silent uninstall") << u"-U -S -X"_s << no << true;
        QTest::newRow("silent install") << u"-I -S -X"_s << no << true;
        QTest::newRow("closed") << u"-U -S -X"_s << int(Nvx::Util::BoxAnswer::Dismissed) << true;
        QTest::newRow("Yes stays silent") << u"-U -S -X"_s << yes << false;
        QTest::newRow("stop services has no window") << u"-ST -X"_s << no << false;
    }

    void afterNoInTheUsageBoxTheWizardIsShown()
    {
        QFETCH(QString, options);
        QFETCH(int, answer);
        QFETCH(bool, shown);
        m_fixture->machine.answer = static_cast<Nvx::Util::BoxAnswer>(answer);
        cfg_utilitys &engine = m_fixture->start(options);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        const ShownWindows windows;
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(windows.any(), shown);
        QVERIFY(!shown || !engine.state().runComplete);
    }

    void closingTheWindowEndsTheProgramWithZero()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I"_s);
        m_fixture->machine.calls.clear();
        closeSoon();
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(!engine.state().runComplete);
        QVERIFY(m_fixture->machine.calls.isEmpty());
    }

    void finishEndsTheProgramWithZero()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U"_s);
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            const QWizard *wizard = shownWizard();
            if (wizard && engine.state().runComplete)
                wizard->button(QWizard::FinishButton)->click();
        });
        poll.start(50);
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_fixture->lines().last(), u"   0 Program exiting"_s);
    }

private:
    // Closes the wizard soon after it is shown.
    void closeSoon() { m_close.start(200); }

    QTimer m_close;
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_passes)
#include "tst_passes.moc"
