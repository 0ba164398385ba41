#include "cfg_utilities/installation_steps.h"
#include "engine/engine_fixture.h"
#include "nvx_util/system.h"
#include "run/progress_view.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Engine;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

// A line that is also a row of the wizard's last page.
const QString rowMark = u"row: "_s;

const QString lastLine = u"The installation or update is complete. Click finish to continue."_s;

/// The lines that a step logs at level 0, each up to its colon, without those of external programs.
struct StepLines
{
    QString name; ///< of the step in installationSteps()
    QStringList install;
    QStringList uninstall;
};

/// The lines of all steps, in the order of the run.
QList<StepLines> stepLines()
{
    const QString row = rowMark;
    return {
        {.name = u"reserveInstallFolder"_s, .install = {}, .uninstall = {}},
        {.name = u"installTutorials"_s,
         .install = {row + u"Install Tutorials"_s, u"Installing Tutorials"_s},
         .uninstall = {row + u"UnInstall Tutorials"_s}},
        {.name = u"installPython"_s,
         .install = {row + u"Install Python (locally for NVX)"_s, u"Installing Python"_s},
         .uninstall = {row + u"UnInstall Python (locally for NVX)"_s}},
        {.name = u"installMertleServer"_s,
         .install = {row + u"Install Mertle Server"_s,
                     u"No translators folder is set; the Mertle Server is not installed or removed"_s},
         .uninstall = {row + u"UnInstall Mertle Server"_s,
                       u"No translators folder is set; the Mertle Server is not installed or removed"_s}},
        {.name = u"createParallelConfiguration"_s,
         .install = {u"Created NVX2 default configuration"_s, u"Created NVX2 analyze folder"_s},
         .uninstall = {}},
        {.name = u"updateRegistry"_s,
         .install = {row + u"Registry paths"_s, u"Updating language registry uninstall "_s,
                     u"Updating language registry uninstall currently is"_s,
                     u"Running NVX 3D-ViewerConfig."_s},
         .uninstall = {row + u"Registry paths"_s, u"Running NVX 3D-ViewerConfig."_s}},
        {.name = u"createFileAssociations"_s,
         .install = {row + u"Create file associations"_s, u"FileAssociations.reg"_s},
         .uninstall = {row + u"Create file associations"_s, u"FileAssociations.reg"_s}},
        {.name = u"uninstallServer"_s,
         .install = {u"uninstallServer "_s, u"uninstallServer - could not stop service"_s,
                     u"uninstallServer - service was not installed"_s},
         .uninstall = {u"uninstallServer "_s, u"uninstallServer - could not stop service"_s,
                       u"uninstallServer - service was not installed"_s}},
        {.name = u"installServer"_s, .install = {}, .uninstall = {}},
        {.name = u"createShortcuts"_s,
         .install = {u"Desktop="_s, u"Create shortcut Velmora NVX 2017.lnk Success"_s},
         .uninstall = {u"Desktop="_s}},
        {.name = u"installLaunchers"_s,
         .install = QStringList(3, u"Install Creo Remove"_s),
         .uninstall = QStringList(3, u"UnInstall Creo Remove"_s)},
        {.name = u"notifyAssociationsChanged"_s, .install = {}, .uninstall = {}},
        {.name = u"processFlagFile"_s,
         .install = {row + u"Processing NVX_flags.txt"_s},
         .uninstall = {row + u"Processing NVX_flags.txt"_s, u"NVX_flags.txt has not changed"_s}},
        {.name = u"checkMaterialDatabase"_s,
         .install = {row + u"Checking material database"_s, u"Copy"_s},
         .uninstall = {row + u"Checking material database"_s, u"Remove"_s, u"Remove"_s}},
        {.name = u"cleanLumara"_s, .install = {}, .uninstall = {}},
    };
}

// Records what the last page of the wizard would show.
class RecordingView : public ProgressView
{
public:
    explicit RecordingView(const cfg_utilitys &engine)
        : m_engine(engine)
    {
    }

    void appendRow(const QString &row) override
    {
        shown << row;
        if (whenShown)
            whenShown(row);
    }
    void clear() override
    {
        shown.clear();
        ++clears;
    }
    void runCompleteChanged() override { completions << m_engine.state().runComplete; }

    /// Called for each new row.
    std::function<void(const QString &)> whenShown;

    QStringList shown;
    int clears = 0;
    QList<bool> completions;

private:
    const cfg_utilitys &m_engine;
};

} // namespace

class tst_process_installation : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_fixture->machine.desktop = m_fixture->test.path(u"Desktop"_s);
        for (const char *name : {"NVXSolver.exe", "NVXServer.exe", "matprop.mdb"})
            writeFile(m_fixture->installed(name));
        m_fixture->machine.whileRunning = [this](const Nvx::Util::ProgramCall &call) {
            if (call.program.endsWith(u"NVXServer.exe"_s))
                m_fixture->machine.service.current = Nvx::Util::ServiceState::Stopped;
        };
    }
    void cleanup() { m_fixture.reset(); }

    void everyStepHasItsLinesInOrder()
    {
        QStringList steps;
        for (const InstallationStep &step : installationSteps())
            steps << QString::fromLatin1(step.name);
        QStringList listed;
        for (const StepLines &step : stepLines())
            listed << step.name;
        QCOMPARE(listed, steps);
    }

    void anInstallRunsItsStepsInOrder()
    {
        run(u"-I -S -Len-US"_s);
        QCOMPARE(loggedLines(), logOf(u"Install"_s, &StepLines::install));
        QCOMPARE(m_fixture->machine.associationNotices, 2); // of the shortcut and of the run itself
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::Active);
        QVERIFY(m_fixture->machine.boxes.isEmpty());
        QVERIFY(m_fixture->engine->state().runComplete);
    }

    void anUninstallRunsTheSameStepsInOrder()
    {
        run(u"-U -S -Len-US"_s);
        QCOMPARE(loggedLines(), logOf(u"UnInstall"_s, &StepLines::uninstall));
        QCOMPARE(m_fixture->machine.associationNotices, 2); // of the shortcut and of the run itself
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::NotInstalled);
    }

    void aLogoffIsHeldBackDuringTheRun()
    {
        RecordingMachine &machine = m_fixture->machine;
        int holds = 0;
        machine.whileRunning = [&](const Nvx::Util::ProgramCall &) { holds = machine.logoffHolds; };
        m_fixture->start(u"-I -S"_s);
        QCOMPARE(holds, 0);
        m_fixture->engine->ProcessInstallation();
        QCOMPARE(holds, 1);
        QCOMPARE(machine.logoffHolds, 0);
        QCOMPARE(
            machine.logoffReasons,
            QStringList{u"NVX Configuration Utility: NVX 2017 is being configured. If you sign out now, it "
                        "stays incomplete."_s});
    }

    void aLogoffIsHeldBackWhileTheServicesAreStopped()
    {
        RecordingMachine &machine = m_fixture->machine;
        int holds = 0;
        machine.whileRunning = [&](const Nvx::Util::ProgramCall &) { holds = machine.logoffHolds; };
        m_fixture->start(u"-ST"_s);
        m_fixture->engine->stopServices(RunMode::StopServices);
        QCOMPARE(holds, 1);
        QCOMPARE(machine.logoffHolds, 0);
    }

    void theProcessorLineHasNeitherTimeNorLevel()
    {
        run(u"-I -S"_s);
        const QStringList lines = m_fixture->lines();
        const QStringList bare = lines.filter(QRegularExpression(u"^! "_s));
        QCOMPARE(bare.size(), 1);
        QVERIFY(QRegularExpression(u"^! Processors: [1-9]\\d*, Cores per processor: [1-9]\\d*$"_s)
                    .match(bare.first())
                    .hasMatch());
        QCOMPARE(lines.indexOf(bare.first()), lines.indexOf(u"   0 Beginning Install"_s) + 1);
    }

    void eventsAreHandledAtTheProcessorsLine()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        engine.setProgressView(&view);
        bool isHandled = false;
        view.whenShown = [&](const QString &row) {
            if (row.startsWith(u"Processors: "_s))
                QTimer::singleShot(0, this, [&isHandled] { isHandled = true; });
        };
        // The first program removes the old tutorials before the next row is shown.
        std::optional<bool> isHandledAtTheFirstProgram;
        m_fixture->machine.whileRunning = [&](const auto &) {
            if (!isHandledAtTheFirstProgram)
                isHandledAtTheFirstProgram = isHandled && view.shown.size() == 1;
        };
        engine.ProcessInstallation();
        QCOMPARE(isHandledAtTheFirstProgram, std::optional<bool>(true));
    }

    void pendingNotesAreLoggedFirst()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        view.shown = QStringList{u"from an earlier run"_s};
        engine.setProgressView(&view);
        engine.addPendingNote(u"note 1"_s);
        engine.addPendingNote(u"note 2"_s);
        engine.ProcessInstallation();

        const QStringList lines = m_fixture->lines();
        const auto start = lines.indexOf(u"   0 Beginning Install"_s);
        QCOMPARE(lines.mid(start + 1, 2), QStringList({u"   0 note 1"_s, u"   0 note 2"_s}));
        QCOMPARE(view.clears, 1);
        QCOMPARE(view.shown.mid(0, 2), QStringList({u"note 1"_s, u"note 2"_s}));
        QVERIFY(view.shown.at(2).startsWith(u"Processors: "_s));
    }

    void withoutPendingNotesTheListIsOnlyCleared()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        view.shown = QStringList{u"from an earlier run"_s};
        engine.setProgressView(&view);
        engine.ProcessInstallation();
        QCOMPARE(view.clears, 1);
        QVERIFY(view.shown.first().startsWith(u"Processors: "_s));
    }

    void theRowsOfThePageAreThoseOfTheSteps()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        engine.setProgressView(&view);
        engine.ProcessInstallation();
        QStringList rows;
        for (const StepLines &step : stepLines())
            rows << step.install.filter(rowMark).replaceInStrings(rowMark, QString());
        QCOMPARE(view.shown.mid(1), rows << lastLine);
    }

    void theRunIsCompleteOnlyAtItsEnd()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        engine.setProgressView(&view);
        engine.clearRunComplete();
        bool completeMeanwhile = true;
        m_fixture->machine.whileRunning = [&](const auto &) {
            completeMeanwhile = engine.state().runComplete;
        };
        engine.ProcessInstallation();
        QVERIFY(!completeMeanwhile);
        QCOMPARE(view.completions, QList<bool>({false, true}));
    }

    void aProgressLineProcessesEvents()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        bool isProcessed = false;
        QTimer::singleShot(0, this, [&isProcessed] { isProcessed = true; });
        engine.progress(0, u"x"_s);
        QVERIFY(isProcessed);
        QCOMPARE(m_fixture->lines().last(), u"   0 x"_s);
    }

    void aProgressLineIsShownBeforeItIsLogged()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        RecordingView view(engine);
        engine.setProgressView(&view);
        const QStringList before = m_fixture->lines();
        QStringList shownMeanwhile;
        QStringList loggedMeanwhile;
        QTimer::singleShot(0, this, [&] {
            shownMeanwhile = view.shown;
            loggedMeanwhile = m_fixture->lines();
        });
        engine.progress(3, u"x"_s);
        QCOMPARE(shownMeanwhile, QStringList(u"x"_s));
        QCOMPARE(loggedMeanwhile, before);
        QCOMPARE(m_fixture->lines(), before + QStringList(u"   3 x"_s));
        QCOMPARE(view.shown, shownMeanwhile);
    }

    void aMessageIsShownAndLogged()
    {
        m_fixture->start(u"-I -S"_s).inform(1, u"look"_s);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QCOMPARE(m_fixture->machine.boxes.first().title, u"NVX Configuration Utility"_s);
        QCOMPARE(m_fixture->machine.boxes.first().text, u"look"_s);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Information);
        QCOMPARE(m_fixture->lines().last(), u"   1 look"_s);
    }

    void aMessageRemovesTheWaitCursorAndIsLoggedOnceItIsClosed()
    {
        cfg_utilitys &engine = m_fixture->start(u"-I -S"_s);
        const QStringList before = m_fixture->lines();
        QStringList loggedMeanwhile;
        bool waitsMeanwhile = true;
        m_fixture->machine.whileTelling = [&] {
            loggedMeanwhile = m_fixture->lines();
            waitsMeanwhile = QGuiApplication::overrideCursor();
        };
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        engine.inform(1, u"look"_s);
        QVERIFY(!waitsMeanwhile);
        QCOMPARE(loggedMeanwhile, before);
        QCOMPARE(m_fixture->lines(), before + QStringList(u"   1 look"_s));
    }

    void aMissingFlagFileIsCreatedWithAnEmptyLine()
    {
        m_fixture->start(u"-I -S"_s).processFlagFile(u"NVX_other.txt"_s, RunMode::Install);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.mid(lines.size() - 2),
                 QStringList({u"   0 Processing NVX_other.txt"_s, u"   0 Creating NVX_other.txt"_s}));
        QCOMPARE(readFile(flag("NVX_other.txt")), QByteArray("\r\n"));
    }

    void anExistingFlagFileIsLeftAloneOnInstall()
    {
        writeFile(flag("NVX_other.txt"), "mine");
        m_fixture->start(u"-I -S"_s).processFlagFile(u"NVX_other.txt"_s, RunMode::Install);
        QCOMPARE(m_fixture->lines().last(), u"   0 Processing NVX_other.txt"_s);
        QCOMPARE(readFile(flag("NVX_other.txt")), QByteArray("mine"));
    }

    void anUnfinishedCopyOfTheFlagsFileIsRemoved()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        writeFile(flag("NVX_flags.txt.nvxpart"), "half");
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Uninstall);
        QVERIFY(!QFile::exists(flag("NVX_flags.txt.nvxpart")));
    }

    void onlyAnUnchangedFlagFileIsRemoved_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("stays");
        QTest::newRow("blanks") << QByteArray("   ") << false;
        QTest::newRow("an empty line") << QByteArray("\r\n") << false;
        QTest::newRow("no bytes") << QByteArray() << false;
        QTest::newRow("text") << QByteArray("on") << true;
    }

    void onlyAnUnchangedFlagFileIsRemoved()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, stays);
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        writeFile(flag("NVX_flags.txt"), contents);
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Uninstall);
        QCOMPARE(QFile::exists(flag("NVX_flags.txt")), stays);
        QCOMPARE(m_fixture->lines().last(), stays ? u"   0 NVX_flags.txt has changed, not removing"_s
                                                  : u"   0 NVX_flags.txt has not changed"_s);
    }

    void aMissingFlagFileCountsAsUnchanged()
    {
        m_fixture->start(u"-U -S"_s).processFlagFile(u"NVX_flags.txt"_s, RunMode::Uninstall);
        QCOMPARE(m_fixture->lines().last(), u"   0 NVX_flags.txt has not changed"_s);
    }

    void aFlagFileThatCannotBeReadStays()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        QVERIFY(QDir().mkpath(flag("NVX_flags.txt"))); // it exists but cannot be read as a file
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Uninstall);
        QVERIFY(QDir(flag("NVX_flags.txt")).exists());
        QCOMPARE(m_fixture->lines().last(), u"   0 NVX_flags.txt has changed, not removing"_s);
    }

    void aFlagFileThatCannotBeCreatedIsLogged()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U -S"_s);
        writeFile(System::getFlagsDirPath()); // a file has the folder's name
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Install);
        QCOMPARE(m_fixture->lines().last(), u"   1 Unable to create "_s + flag("NVX_flags.txt"));
    }

private:
    void run(const QString &options) { m_fixture->start(options).ProcessInstallation(); }

    static QString flag(const char *name) { return joinPath(System::getFlagsDirPath(), text(name)); }

    // The expected log of a run in one mode.
    static QStringList logOf(const QString &modeWord, QStringList StepLines::*lines)
    {
        QStringList log = {u"   0 Beginning "_s + modeWord, u"! Processors"_s};
        for (const StepLines &step : stepLines()) {
            for (const QString &line : step.*lines)
                log << u"   0 "_s + (line.startsWith(rowMark) ? line.mid(rowMark.size()) : line);
        }
        return log << u"   0 "_s + lastLine;
    }

    // The lines of the run, without those of external programs, without this test's folders, and without what
    // follows a colon.
    QStringList loggedLines() const
    {
        QStringList found;
        const QStringList lines = m_fixture->lines();
        for (const QString &line : lines.mid(lines.indexOf(QRegularExpression(u"^   0 Beginning .*"_s)))) {
            static const QRegularExpression ofPrograms(
                u"^ +-?\\d+ (Command:|WorkDir:|Output:|  | output:|Removing:)"_s);
            if (ofPrograms.match(line).hasMatch())
                continue;
            QString shown = line;
            for (const QString &folder : {m_fixture->machine.desktop, m_fixture->machine.ownFolder})
                shown.remove(folder + QDir::separator()).remove(folder);
            found << shown.section(u':', 0, 0);
        }
        return found;
    }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_process_installation)
#include "tst_process_installation.moc"
