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

namespace {

// Keeps what the last page of the wizard would show.
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

    /// Called with each row that is added.
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
        m_fixture->machine.desktop = m_fixture->test.path(text("Desktop"));
        for (const char *name : {"NVXSolver.exe", "NVXServer.exe", "matprop.mdb"})
            writeFile(m_fixture->installed(name));
        m_fixture->machine.whileRunning = [this](const Nvx::Util::ProgramCall &call) {
            if (call.program.endsWith(text("NVXServer.exe")))
                m_fixture->machine.service.current = Nvx::Util::ServiceState::Stopped;
        };
    }
    void cleanup() { m_fixture.reset(); }

    void anInstallRunsItsStepsInOrder()
    {
        run(text("-I -S -Len-US"));
        QCOMPARE(
            steps(),
            QStringList({text("   0 Beginning Install"),
                         text("! Processors"),
                         text("   0 Install Tutorials"),
                         text("   0 Installing Tutorials"),
                         text("   0 Install Python (locally for NVX)"),
                         text("   0 Installing Python"),
                         text("   0 Install Mertle Server"),
                         text("   0 There is no translators folder, the Mertle Server is left alone"),
                         text("   0 Created NVX2 default configuration"),
                         text("   0 Created NVX2 analyze folder"),
                         text("   0 Registry paths"),
                         text("   0 Updating language registry uninstall "),
                         text("   0 Updating language registry uninstall currently is"),
                         text("   0 Running NVX 3D-ViewerConfig."),
                         text("   0 Create file associations"),
                         text("   0 FileAssociations.reg"),
                         text("   0 uninstallServer "),
                         text("   0 uninstallServer - could not stop service"),
                         text("   0 uninstallServer - service was not installed"),
                         text("   0 Desktop="),
                         text("   0 Create shortcut Velmora NVX 2017.lnk Success"),
                         text("   0 Install Creo Remove"),
                         text("   0 Install Creo Remove"),
                         text("   0 Install Creo Remove"),
                         text("   0 Processing NVX_flags.txt"),
                         text("   0 Checking material database"),
                         text("   0 Copy"),
                         text("   0 The installation or update is complete. Click finish to continue.")}));
        QCOMPARE(m_fixture->machine.associationNotices, 2); // the shortcut's and the run's own
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::Active);
        QVERIFY(m_fixture->machine.boxes.isEmpty());
        QVERIFY(m_fixture->engine->state().runComplete);
    }

    void anUninstallRunsTheSameStepsInOrder()
    {
        run(text("-U -S -Len-US"));
        QCOMPARE(
            steps(),
            QStringList({text("   0 Beginning UnInstall"),
                         text("! Processors"),
                         text("   0 UnInstall Tutorials"),
                         text("   0 UnInstall Python (locally for NVX)"),
                         text("   0 UnInstall Mertle Server"),
                         text("   0 There is no translators folder, the Mertle Server is left alone"),
                         text("   0 Registry paths"),
                         text("   0 Running NVX 3D-ViewerConfig."),
                         text("   0 Create file associations"),
                         text("   0 FileAssociations.reg"),
                         text("   0 uninstallServer "),
                         text("   0 uninstallServer - could not stop service"),
                         text("   0 uninstallServer - service was not installed"),
                         text("   0 Desktop="),
                         text("   0 UnInstall Creo Remove"),
                         text("   0 UnInstall Creo Remove"),
                         text("   0 UnInstall Creo Remove"),
                         text("   0 Processing NVX_flags.txt"),
                         text("   0 NVX_flags.txt has not changed"),
                         text("   0 Checking material database"),
                         text("   0 Remove"),
                         text("   0 Remove"),
                         text("   0 The installation or update is complete. Click finish to continue.")}));
        QCOMPARE(m_fixture->machine.associationNotices, 2); // the shortcut's and the run's own
        QVERIFY(m_fixture->machine.service.current == Nvx::Util::ServiceState::NotInstalled);
    }

    void theProcessorLineHasNeitherTimeNorLevel()
    {
        run(text("-I -S"));
        const QStringList lines = m_fixture->lines();
        const QStringList bare = lines.filter(QRegularExpression(text("^! ")));
        QCOMPARE(bare.size(), 1);
        QVERIFY(QRegularExpression(text("^! Processors: [1-9]\\d*, Cores per processor: [1-9]\\d*$"))
                    .match(bare.first())
                    .hasMatch());
        QCOMPARE(lines.indexOf(bare.first()), lines.indexOf(text("   0 Beginning Install")) + 1);
    }

    void eventsAreHandledAtTheProcessorsLine()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingView view(engine);
        engine.setProgressView(&view);
        bool isHandled = false;
        view.whenShown = [&](const QString &row) {
            if (row.startsWith(text("Processors: ")))
                QTimer::singleShot(0, this, [&isHandled] { isHandled = true; });
        };
        // The first program removes the old tutorials, before the next row is shown.
        std::optional<bool> isHandledAtTheFirstProgram;
        m_fixture->machine.whileRunning = [&](const auto &) {
            if (!isHandledAtTheFirstProgram)
                isHandledAtTheFirstProgram = isHandled && view.shown.size() == 1;
        };
        engine.ProcessInstallation();
        QCOMPARE(isHandledAtTheFirstProgram, std::optional<bool>(true));
    }

    void pendingNotesAreToldFirst()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingView view(engine);
        view.shown = QStringList{text("from an earlier run")};
        engine.setProgressView(&view);
        engine.addPendingNote(text("note 1"));
        engine.addPendingNote(text("note 2"));
        engine.ProcessInstallation();

        const QStringList lines = m_fixture->lines();
        const auto start = lines.indexOf(text("   0 Beginning Install"));
        QCOMPARE(lines.mid(start + 1, 2), QStringList({text("   0 note 1"), text("   0 note 2")}));
        QCOMPARE(view.clears, 1);
        QCOMPARE(view.shown.mid(0, 2), QStringList({text("note 1"), text("note 2")}));
        QVERIFY(view.shown.at(2).startsWith(text("Processors: ")));
    }

    void withoutPendingNotesTheListIsOnlyCleared()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingView view(engine);
        view.shown = QStringList{text("from an earlier run")};
        engine.setProgressView(&view);
        engine.ProcessInstallation();
        QCOMPARE(view.clears, 1);
        QVERIFY(view.shown.first().startsWith(text("Processors: ")));
    }

    void everyStepShowsARow()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingView view(engine);
        engine.setProgressView(&view);
        engine.ProcessInstallation();
        QCOMPARE(view.shown.mid(1),
                 QStringList({text("Install Tutorials"), text("Install Python (locally for NVX)"),
                              text("Install Mertle Server"), text("Registry paths"),
                              text("Create file associations"), text("Processing NVX_flags.txt"),
                              text("Checking material database"),
                              text("The installation or update is complete. Click finish to continue.")}));
    }

    void theRunIsCompleteOnlyAtItsEnd()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
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

    void aProgressLineLetsTheWindowPaint()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        bool painted = false;
        QTimer::singleShot(0, this, [&painted] { painted = true; });
        engine.progress(0, text("x"));
        QVERIFY(painted);
        QCOMPARE(m_fixture->lines().last(), text("   0 x"));
    }

    void aProgressLineIsShownThenPaintedThenLogged()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        RecordingView view(engine);
        engine.setProgressView(&view);
        const QStringList before = m_fixture->lines();
        QStringList shownMeanwhile;
        QStringList loggedMeanwhile;
        QTimer::singleShot(0, this, [&] {
            shownMeanwhile = view.shown;
            loggedMeanwhile = m_fixture->lines();
        });
        engine.progress(3, text("x"));
        QCOMPARE(shownMeanwhile, QStringList(text("x")));
        QCOMPARE(loggedMeanwhile, before);
        QCOMPARE(m_fixture->lines(), before + QStringList(text("   3 x")));
        QCOMPARE(view.shown, shownMeanwhile);
    }

    void aMessageIsShownAndLogged()
    {
        m_fixture->start(text("-I -S")).inform(1, text("look"));
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QCOMPARE(m_fixture->machine.boxes.first().title, text("NVX Configuration Utility"));
        QCOMPARE(m_fixture->machine.boxes.first().text, text("look"));
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Information);
        QCOMPARE(m_fixture->lines().last(), text("   1 look"));
    }

    void aMessageTakesTheWaitCursorAwayIsShownAndThenLogged()
    {
        cfg_utilitys &engine = m_fixture->start(text("-I -S"));
        const QStringList before = m_fixture->lines();
        QStringList loggedMeanwhile;
        bool waitsMeanwhile = true;
        m_fixture->machine.whileTelling = [&] {
            loggedMeanwhile = m_fixture->lines();
            waitsMeanwhile = QGuiApplication::overrideCursor();
        };
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        engine.inform(1, text("look"));
        QVERIFY(!waitsMeanwhile);
        QCOMPARE(loggedMeanwhile, before);
        QCOMPARE(m_fixture->lines(), before + QStringList(text("   1 look")));
    }

    void aMissingFlagFileIsMadeWithAnEmptyLine()
    {
        m_fixture->start(text("-I -S")).processFlagFile(text("NVX_other.txt"), RunMode::Install);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.mid(lines.size() - 2),
                 QStringList({text("   0 Processing NVX_other.txt"), text("   0 Creating NVX_other.txt")}));
        QCOMPARE(readFile(flag("NVX_other.txt")), QByteArray("\r\n"));
    }

    void anExistingFlagFileIsLeftAloneOnInstall()
    {
        writeFile(flag("NVX_other.txt"), "mine");
        m_fixture->start(text("-I -S")).processFlagFile(text("NVX_other.txt"), RunMode::Install);
        QCOMPARE(m_fixture->lines().last(), text("   0 Processing NVX_other.txt"));
        QCOMPARE(readFile(flag("NVX_other.txt")), QByteArray("mine"));
    }

    void aCopyOfTheFlagsFileThatWasCutOffGoes()
    {
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        writeFile(flag("NVX_flags.txt.nvxpart"), "half");
        engine.processFlagFile(text("NVX_flags.txt"), RunMode::Uninstall);
        QVERIFY(!QFile::exists(flag("NVX_flags.txt.nvxpart")));
    }

    void anUnchangedFlagFileIsRemoved_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("stays");
        QTest::newRow("blanks") << QByteArray("   ") << false;
        QTest::newRow("an empty line") << QByteArray("\r\n") << false;
        QTest::newRow("no bytes") << QByteArray() << false;
        QTest::newRow("text") << QByteArray("on") << true;
    }

    void anUnchangedFlagFileIsRemoved()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, stays);
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        writeFile(flag("NVX_flags.txt"), contents);
        engine.processFlagFile(text("NVX_flags.txt"), RunMode::Uninstall);
        QCOMPARE(QFile::exists(flag("NVX_flags.txt")), stays);
        QCOMPARE(m_fixture->lines().last(), stays ? text("   0 NVX_flags.txt has changed, not removing")
                                                  : text("   0 NVX_flags.txt has not changed"));
    }

    void aFlagFileThatIsNotThereReadsAsEmpty()
    {
        m_fixture->start(text("-U -S")).processFlagFile(text("NVX_flags.txt"), RunMode::Uninstall);
        QCOMPARE(m_fixture->lines().last(), text("   0 NVX_flags.txt has not changed"));
    }

    void aFlagFileThatCannotBeReadStays()
    {
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        QVERIFY(QDir().mkpath(flag("NVX_flags.txt"))); // it exists, yet nobody can read it as a file
        engine.processFlagFile(text("NVX_flags.txt"), RunMode::Uninstall);
        QVERIFY(QDir(flag("NVX_flags.txt")).exists());
        QCOMPARE(m_fixture->lines().last(), text("   0 NVX_flags.txt has changed, not removing"));
    }

    void aFlagFileThatCannotBeMadeIsLogged()
    {
        cfg_utilitys &engine = m_fixture->start(text("-U -S"));
        writeFile(System::getFlagsDirPath()); // a file is in the folder's place
        engine.processFlagFile(text("NVX_flags.txt"), RunMode::Install);
        QCOMPARE(m_fixture->lines().last(), text("   1 Unable to create ") + flag("NVX_flags.txt"));
    }

private:
    void run(const QString &options) { m_fixture->start(options).ProcessInstallation(); }

    static QString flag(const char *name) { return joinPath(System::getFlagsDirPath(), text(name)); }

    // The lines of the run itself without those of the programs it starts, without the folders of this test,
    // and without what follows a colon.
    QStringList steps() const
    {
        QStringList found;
        const QStringList lines = m_fixture->lines();
        for (const QString &line : lines.mid(lines.indexOf(QRegularExpression(text("^   0 Beginning .*"))))) {
            static const QRegularExpression ofPrograms(
                text("^ +-?\\d+ (Command:|WorkDir:|Output:|  | output:|Removing:)"));
            if (ofPrograms.match(line).hasMatch())
                continue;
            QString shown = line;
            for (const QString &folder : {m_fixture->machine.desktop, m_fixture->machine.ownFolder})
                shown.remove(folder + QDir::separator()).remove(folder);
            found << shown.section(QLatin1Char(':'), 0, 0);
        }
        return found;
    }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_TEST(tst_process_installation)
#include "tst_process_installation.moc"
