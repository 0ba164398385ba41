#include "cad/cad_systems.h"
#include "cad/launcher_step.h"
#include "engine/engine_fixture.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_launchers : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_folders.formerApplicationData = m_fixture->test.path(u"former"_s);
        m_folders.applicationData = m_fixture->test.path(u"present"_s);
        m_folders.spaceClaimAddin = m_fixture->test.path(u"Addin"_s);
        m_fixture->start(u"-I -S -Len-US"_s).setSharedFolders(m_folders);
        m_start = m_fixture->lines().size();
    }
    void cleanup() { m_fixture.reset(); }

    void theGroupRunsEveryLauncherOfTheTable()
    {
        checkAll();
        m_fixture->engine->installLaunchers(RunMode::Install);
        QCOMPARE(m_fixture->lines().mid(m_start), linesOfTheTable());
    }

    void aRunHasThemBetweenTheConfigurationAndTheFlags()
    {
        checkAll();
        m_fixture->engine->ProcessInstallation();
        const QStringList lines = m_fixture->lines().mid(m_start);
        const QStringList expected = linesOfTheTable();
        const qsizetype first = lines.indexOf(expected.first());
        QCOMPARE(lines.mid(first, expected.size()), expected);
        QVERIFY(lines.indexOf(QRegularExpression(u"^   0 Created NVX2 analyze folder.*"_s)) < first);
        QVERIFY(first < lines.indexOf(u"   0 Processing NVX_flags.txt"_s));
    }

    void theShellIsNotifiedAfterTheShortcutAndAfterTheLastLauncher()
    {
        checkAll();
        QStringList lastLines;
        m_fixture->machine.whenNotified = [&] { lastLines << m_fixture->lines().last(); };
        m_fixture->engine->ProcessInstallation();
        QCOMPARE(lastLines.size(), 2);
        QVERIFY2(lastLines.at(0).contains(u" Create shortcut "_s), qPrintable(lastLines.at(0)));
        QCOMPARE(lastLines.at(1), linesOfTheTable().last());
    }

    void eachCadSystemHasItsOwnOperation()
    {
        checkAll();
        cfg_utilitys &engine = *m_fixture->engine;
        engine.installSpaceClaimLauncher(RunMode::Uninstall);
        engine.installNXLauncher(RunMode::Uninstall);
        engine.installSolidWorksLauncher(RunMode::Uninstall);
        engine.installBrevantLauncher(RunMode::Uninstall);
        engine.installCreoLauncher(RunMode::Uninstall);
        engine.installTamselLauncher(RunMode::Uninstall);
        QCOMPARE(titles(), QStringList({u"SpaceClaim"_s, u"UGNX"_s, u"SolidWorks"_s, u"Configure Brevant"_s,
                                        u"ProE Creo"_s, u"Tamsel"_s}));
        QCOMPARE(m_fixture->lines().last(), u"   0 Tamsel MEP"_s);
    }

    void theAddinOfOneYearHasItsOwnOperation()
    {
        QVERIFY(QDir().mkpath(m_fixture->installed("Launchers/Tamsel")));
        m_fixture->engine->installTamselAddin(RunMode::Install, 2018);
        QVERIFY(QFile::exists(m_fixture->test.path(u"former/Velmora/Tamsel/Addins/2018/NVX_2017.Addin"_s)));
    }

    void withoutACheckedLauncherOnlyOldCopiesAreRemoved()
    {
        m_fixture->machine.calls.clear();
        m_fixture->engine->installLaunchers(RunMode::Install);
        const QStringList lines = m_fixture->lines().mid(m_start);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.filter(u"   0 Install Creo Remove:"_s).size(), 3);
        QVERIFY(m_fixture->machine.calls.isEmpty());
    }

private:
    void checkAll()
    {
        for (const CadSystem &system : cadSystems())
            m_checkBoxes.setFound(system.launcher, true);
        m_fixture->engine->setLauncherCheckBoxes(&m_checkBoxes);
    }

    // The lines that the table's launchers report when they are installed one after the other.
    QStringList linesOfTheTable()
    {
        RecordingReporter reporter;
        const CadPackages nothingFound;
        for (const CadSystem &system : cadSystems()) {
            system.install({{m_fixture->machine, reporter, m_fixture->engine->state()},
                            nothingFound,
                            m_checkBoxes,
                            m_folders,
                            RunMode::Install});
        }
        QStringList lines;
        for (QString line : std::as_const(reporter.lines))
            lines << u"   "_s + line.remove(u"progress "_s);
        return lines;
    }

    // The titles of the launchers, in the order of the log.
    QStringList titles() const
    {
        static const QStringList known{u"   0 Configure Brevant"_s,
                                       u"   0 ProE Creo"_s,
                                       u"   0 SolidWorks"_s,
                                       u"   0 UGNX"_s,
                                       u"   0 Tamsel"_s,
                                       u"   0 SpaceClaim"_s};
        QStringList found;
        const QStringList lines = m_fixture->lines().mid(m_start);
        for (const QString &line : lines) {
            if (known.contains(line))
                found << line.mid(5);
        }
        return found;
    }

    std::unique_ptr<EngineFixture> m_fixture;
    SharedFolders m_folders;
    UnshownCheckBoxes m_checkBoxes;
    qsizetype m_start = 0;
};

NVX_TEST(tst_launchers)
#include "tst_launchers.moc"
