#include "engine/engine_fixture.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

RegistryKey environment()
{
    return RegistryKey(
        text("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"));
}

const char *const installDirVariables[] = {"OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP"};

void setMachineVariables(const QString &value)
{
    for (const char *variable : installDirVariables)
        QVERIFY(environment().setText(text(variable), value));
}

QStringList machineVariables()
{
    QStringList found;
    for (const char *variable : installDirVariables)
        found << environment().text(text(variable)).value_or(text("none"));
    return found;
}

// The runs that install: with -I, and without a mode.
void addInstallRows()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("install") << text("-I");
    QTest::newRow("no mode") << QString();
}

} // namespace

class tst_start_up : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<EngineFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void theLogBeginsWithTheBannerAndTheCommandLine()
    {
        m_fixture->start(text("-I -S"));
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.at(0), text("   0 "));
        QCOMPARE(lines.at(1), text("   0 ") + QString(77, QLatin1Char('=')));
        QCOMPARE(lines.at(2), text("   0 Program startup - NVX 2017 DIR== ") + m_fixture->test.installDir());
        QCOMPARE(lines.at(3), text("   0 Command Line:NVXConfig.exe -I -S"));
    }

    void twoRunsAreBothInTheLog()
    {
        m_fixture->start(text("-I -S"));
        m_fixture->start(text("-U -S"));
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.count(text("   0 ") + QString(77, QLatin1Char('='))), 2);
        const auto first = lines.indexOf(text("   0 Command Line:NVXConfig.exe -I -S"));
        const auto second = lines.indexOf(text("   0 Command Line:NVXConfig.exe -U -S"));
        QVERIFY(first >= 0 && second > first);
    }

    void theLevelIsRightAlignedInFourCharacters_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("line");
        QTest::newRow("two") << 2 << text("   2 x");
        QTest::newRow("ten") << 10 << text("  10 x");
        QTest::newRow("negative") << -2 << text("  -2 x");
        QTest::newRow("wider than four") << 62097 << text("62097 x");
    }

    void theLevelIsRightAlignedInFourCharacters()
    {
        QFETCH(int, level);
        m_fixture->start().log(level, text("x"));
        QTEST(m_fixture->lines().last(), "line");
    }

    void theEngineIsReachableWhileItLives()
    {
        QVERIFY(!cfg_utilitys::instance());
        cfg_utilitys &engine = m_fixture->start();
        QCOMPARE(cfg_utilitys::instance(), &engine);
        m_fixture->engine.reset();
        QVERIFY(!cfg_utilitys::instance());
    }

    void theStateIsFilled()
    {
        const RunState &state = m_fixture->start(text("-U -S -Lde-DE")).state();
        QVERIFY(state.runMode == RunMode::Uninstall);
        QVERIFY(state.silent);
        QVERIFY(!state.runComplete);
        QCOMPARE(state.locale, text("de-DE"));
        QCOMPARE(state.commonDesktop, m_fixture->machine.desktop);
        QCOMPARE(state.modeWords, QStringList({text("Install"), text("UnInstall"), text("Found "),
                                               text(" Success"), text(" Failed")}));
        QVERIFY(state.pendingNotes.isEmpty());
    }

    void aMachineWithoutACommonDesktopLeavesItEmpty()
    {
        m_fixture->machine.desktop.clear();
        QCOMPARE(m_fixture->start().state().commonDesktop, QString());
    }

    void theSystemsLocaleIsTakenWithoutAnOption()
    {
        QCOMPARE(m_fixture->start().state().locale, Nvx::Util::supportedSystemLocale());
    }

    void aRunWithoutOptionsStaysWithoutAMode()
    {
        QVERIFY(m_fixture->start().state().runMode == RunMode::NotGiven);
    }

    void theEscapedInstallDirDoublesEveryBackslash()
    {
        m_fixture->machine.ownFolder = m_fixture->test.path(text("NVX")) + text("\\a\\b");
        const RunState &state = m_fixture->start(text("-I")).state();
        QCOMPARE(state.installDirEscaped,
                 QString(state.installDir).replace(QLatin1Char('\\'), QLatin1String("\\\\")));
        QVERIFY(state.installDirEscaped.endsWith(text("\\\\a\\\\b")));
    }

    void theThirtyTwoBitPartOfTheRegistryIsNoticed_data()
    {
        QTest::addColumn<QString>("subKey");
        QTest::newRow("by a value") << QString();
        QTest::newRow("by a key") << text("\\Run");
    }

    void theThirtyTwoBitPartOfTheRegistryIsNoticed()
    {
        QFETCH(QString, subKey);
        const auto windows32 =
            text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion");
        // A Windows machine has it from the start.
        QCOMPARE(m_fixture->start().state().registry64, RegistryKey(windows32).hasEntries());
        QVERIFY(RegistryKey(windows32 + subKey).setText(text("a name"), text("a value")));
        QVERIFY(m_fixture->start().state().registry64);
        RegistryKey(windows32 + subKey).removeValue(text("a name"));
    }

    void anInstallAcceptsItsFolderAndWritesNoVariables_data() { addInstallRows(); }

    void anInstallAcceptsItsFolderAndWritesNoVariables()
    {
        QFETCH(QString, options);
        setMachineVariables(text("C:\\by the installer"));
        m_fixture->start(options);
        const QStringList lines = m_fixture->lines();
        const QString folder = m_fixture->test.installDir();
        const auto start =
            lines.indexOf(text("   0 Validating Installation Path Velmora NVX 2017 DIR=") + folder);
        QVERIFY(start > 0);
        QCOMPARE(lines.at(start + 1), text("   0 Install Path OK ") + folder);
        QCOMPARE(lines.at(start + 2), text("   0 user dir="));
        QCOMPARE(machineVariables(), QStringList(3, text("C:\\by the installer")));
        QVERIFY(m_fixture->machine.processVariables.isEmpty());
        QVERIFY(QDir(System::getUserDataPath()).exists());
    }

    void anInstallWithoutAFolderTakesTheWorkingFolderAndWritesTheVariables_data() { addInstallRows(); }

    void anInstallWithoutAFolderTakesTheWorkingFolderAndWritesTheVariables()
    {
        QFETCH(QString, options);
        setMachineVariables(text("C:\\by the installer"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_fixture->test.installDir()));
        m_fixture->machine.ownFolder.clear();
        const QString working = System::getWorkingDirPath();
        const RunState &state = m_fixture->start(options).state();
        QDir::setCurrent(before);

        QCOMPARE(state.installDir, working);
        QCOMPARE(state.installDirEscaped, QString(working).replace(QLatin1Char('\\'), QLatin1String("\\\\")));
        QVERIFY(state.runMode == (options.isEmpty() ? RunMode::NotGiven : RunMode::Install));
        QVERIFY(QDir(System::getUserDataPath()).exists());
        QCOMPARE(machineVariables(), QStringList(3, working));
        const QByteArray value = working.toLocal8Bit();
        const QList<QPair<QByteArray, QByteArray>> expected{
            {"OSTRADE", value}, {"OSTRADE2017DIR", value}, {"OSTRADE2017TEMP", value}};
        QCOMPARE(m_fixture->machine.processVariables, expected);
    }

    void everyOtherModeRemovesTheVariables_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("uninstall") << text("-U");
        QTest::newRow("stop services") << text("-ST");
        QTest::newRow("localisation") << text("-T");
    }

    void everyOtherModeRemovesTheVariables()
    {
        QFETCH(QString, option);
        writeFile(m_fixture->installed("NVXSolver.exe"));
        setMachineVariables(m_fixture->test.installDir());
        QVERIFY(environment().setText(text("OSTRADE2016DIR"), text("C:\\old")));
        m_fixture->start(option);

        const QStringList lines = m_fixture->lines();
        const QString folder = m_fixture->test.installDir();
        const auto start =
            lines.indexOf(text("   0 Validating Installation Path Velmora NVX 2017 DIR=") + folder);
        QVERIFY(start > 0);
        QCOMPARE(lines.at(start + 1),
                 text("   0 Removing installation path environment variables.") + folder);
        QVERIFY(!lines.contains(text("   0 user dir=")));
        QCOMPARE(machineVariables(), QStringList(3, text("none")));
        QCOMPARE(environment().text(text("OSTRADE2016DIR")), std::optional<QString>(text("C:\\old")));
        QVERIFY(!QDir(System::getUserDataPath()).exists());
    }

    void anUninstallWithoutTheSolverOrAFolderTakesTheWorkingFolder_data()
    {
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("without the solver") << true;
        QTest::newRow("without a folder") << false;
    }

    void anUninstallWithoutTheSolverOrAFolderTakesTheWorkingFolder()
    {
        QFETCH(const bool, hasFolder);
        const QString folder = m_fixture->test.path(text("empty"));
        QVERIFY(QDir().mkdir(folder));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder));
        if (!hasFolder)
            m_fixture->machine.ownFolder.clear();
        const RunState &state = m_fixture->start(text("-U")).state();
        QDir::setCurrent(before);
        QCOMPARE(QDir(state.installDir).canonicalPath(), QDir(folder).canonicalPath());
    }

    void theWorkingFolderIsLoggedWhenItIsTaken()
    {
        const RunState &state = m_fixture->start(text("-U")).state();
        QCOMPARE(state.installDir, System::getWorkingDirPath());
        QVERIFY(m_fixture->lines().contains(
            text("   0 Program startup - Install path is empty or is invalid, resetting to:") +
            System::getWorkingDirPath()));
    }

    void anUnknownOptionShowsTheUsage()
    {
        m_fixture->start(text("-X -I"));
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Warning);
        QCOMPARE(m_fixture->machine.boxes.first().title, text("Command line arguments"));
        QVERIFY(m_fixture->machine.boxes.first().text.startsWith(
            text("Valid NVX command line arguments are:\n")));
        QVERIFY(m_fixture->engine->state().runMode == RunMode::Install);
    }

    void noAtTheUsageSkipsTheRestOfTheStartUp_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("No") << int(Nvx::Util::Answer::No);
        QTest::newRow("closed") << int(Nvx::Util::Answer::Dismissed);
    }

    void noAtTheUsageSkipsTheRestOfTheStartUp()
    {
        QFETCH(int, answer);
        m_fixture->machine.answer = static_cast<Nvx::Util::Answer>(answer);
        setMachineVariables(text("C:\\old"));
        const RunState &state = m_fixture->start(text("-U -X -S")).state();
        QVERIFY(state.runMode == RunMode::Uninstall);
        QVERIFY(!state.silent);
        QVERIFY(state.modeWords.isEmpty());
        QCOMPARE(state.installDirEscaped, QString());
        QCOMPARE(machineVariables(), QStringList(3, text("C:\\old")));
        QCOMPARE(m_fixture->lines().last(), text("   0 Command Line:NVXConfig.exe -U -X -S"));
    }

    void aLogThatCannotBeOpenedChangesNothingElse()
    {
        QVERIFY(QDir().mkpath(m_fixture->installed("NVXConfig.log"))); // a folder of that name is in the way
        const RunState &state = m_fixture->start(text("-I -S -Lde-DE")).state();
        QVERIFY(state.runMode == RunMode::Install);
        QCOMPARE(System::getLocale(), text("de-DE"));
        QVERIFY(QDir(System::getUserDataPath()).exists());
        m_fixture->engine->ProcessInstallation();
        QVERIFY(state.runComplete);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_start_up)
#include "tst_start_up.moc"
