#include "engine/engine_fixture.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

class tst_launchers : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        SharedFolders folders;
        folders.applicationDataOfOld = m_fixture->test.path(text("of old"));
        folders.applicationData = m_fixture->test.path(text("of today"));
        folders.spaceClaimAddin = m_fixture->test.path(text("Addin"));
        m_fixture->start(text("-I -S -Len-US")).setSharedFolders(folders);
        m_start = m_fixture->lines().size();
    }
    void cleanup() { m_fixture.reset(); }

    void theGroupRunsTheLaunchersInTheirOrder()
    {
        tickAll();
        m_fixture->engine->installLaunchers(RunMode::Install);
        QCOMPARE(titles(), QStringList({text("Configure Brevant"), text("ProE Creo"), text("SolidWorks"),
                                        text("UGNX"), text("Tamsel"), text("Tamsel Architecture"),
                                        text("Tamsel MEP"), text("SpaceClaim")}));
    }

    void aRunHasThemBetweenTheConfigurationAndTheFlags()
    {
        tickAll();
        m_fixture->engine->ProcessInstallation();
        const QStringList lines = m_fixture->lines();
        const QString progress = text("   0 ");
        QVERIFY(lines.indexOf(QRegularExpression(text("^   0 Created NVX2 analyze folder.*"))) <
                lines.indexOf(progress + text("Configure Brevant")));
        QVERIFY(lines.indexOf(progress + text("SpaceClaim")) <
                lines.indexOf(progress + text("Processing NVX_flags.txt")));
        QCOMPARE(titles().size(), 8);
    }

    void theShellIsNotifiedOfTheShortcutAndThenAfterTheLastLauncher()
    {
        tickAll();
        QStringList lastLines;
        m_fixture->machine.whenNotified = [&] { lastLines << m_fixture->lines().last(); };
        m_fixture->engine->ProcessInstallation();
        QCOMPARE(lastLines.size(), 2);
        QVERIFY2(lastLines.at(0).contains(text(" Create shortcut ")), qPrintable(lastLines.at(0)));
        const QString target =
            Nvx::Util::joinPath(m_fixture->test.path(text("Addin")), text("NVX_2017_SpaceClaim.xml"));
        QVERIFY2(lastLines.at(1).endsWith(text(" to: ") + target), qPrintable(lastLines.at(1)));
    }

    void eachIsAnOperationOfItsOwn()
    {
        tickAll();
        cfg_utilitys &engine = *m_fixture->engine;
        engine.installSpaceClaimLauncher(RunMode::Uninstall);
        engine.installNXLauncher(RunMode::Uninstall);
        engine.installSolidWorksLauncher(RunMode::Uninstall);
        engine.installBrevantLauncher(RunMode::Uninstall);
        engine.installCreoLauncher(RunMode::Uninstall);
        QCOMPARE(titles(), QStringList({text("SpaceClaim"), text("UGNX"), text("SolidWorks"),
                                        text("Configure Brevant"), text("ProE Creo")}));
    }

    void anAddinOfOneYearIsAnOperationToo()
    {
        QVERIFY(QDir().mkpath(m_fixture->installed("Launchers/Tamsel")));
        m_fixture->engine->installTamselAddin(RunMode::Install, 2018);
        QVERIFY(
            QFile::exists(m_fixture->test.path(text("of old/Velmora/Tamsel/Addins/2018/NVX_2017.Addin"))));
    }

    void withoutATickOnlyOldCopiesAreSwept()
    {
        m_fixture->machine.calls.clear();
        m_fixture->engine->installLaunchers(RunMode::Install);
        const QStringList lines = m_fixture->lines().mid(m_start);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.filter(text("   0 Install Creo Remove:")).size(), 3);
        QVERIFY(m_fixture->machine.calls.isEmpty());
    }

private:
    void tickAll()
    {
        for (int launcher = 0; launcher < launcherCount; ++launcher)
            m_boxes.setFound(static_cast<Launcher>(launcher), true);
        m_fixture->engine->setLauncherBoxes(&m_boxes);
    }

    // The lines that say which launcher's turn it is, without their level.
    QStringList titles() const
    {
        static const QStringList known{
            text("Configure Brevant"),   text("ProE Creo"),  text("SolidWorks"), text("UGNX"), text("Tamsel"),
            text("Tamsel Architecture"), text("Tamsel MEP"), text("SpaceClaim")};
        QStringList found;
        const QStringList lines = m_fixture->lines().mid(m_start);
        for (const QString &line : lines) {
            if (known.contains(line.mid(5)))
                found << line.mid(5);
        }
        return found;
    }

    std::unique_ptr<EngineFixture> m_fixture;
    UnshownLauncherBoxes m_boxes;
    qsizetype m_start = 0;
};

NVX_TEST(tst_launchers)
#include "tst_launchers.moc"
