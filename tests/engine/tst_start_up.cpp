#include "engine/engine_fixture.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

RegistryKey environment()
{
    return RegistryKey(
        u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"_s);
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
        found << environment().text(text(variable)).value_or(u"none"_s);
    return found;
}

// Runs that install: with -I and without a mode.
void addInstallRows()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("install") << u"-I"_s;
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
        m_fixture->start(u"-I -S"_s);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.at(0), u"   0 "_s);
        QCOMPARE(lines.at(1), u"   0 "_s + QString(77, u'='));
        QCOMPARE(lines.at(2), u"   0 Program startup - NVX 2017 DIR== "_s + m_fixture->test.installDir());
        QCOMPARE(lines.at(3), u"   0 Command Line:NVXConfig.exe -I -S"_s);
    }

    void twoRunsAreBothInTheLog()
    {
        m_fixture->start(u"-I -S"_s);
        m_fixture->start(u"-U -S"_s);
        const QStringList lines = m_fixture->lines();
        QCOMPARE(lines.count(u"   0 "_s + QString(77, u'=')), 2);
        const auto first = lines.indexOf(u"   0 Command Line:NVXConfig.exe -I -S"_s);
        const auto second = lines.indexOf(u"   0 Command Line:NVXConfig.exe -U -S"_s);
        QVERIFY(first >= 0 && second > first);
    }

    void theLevelIsRightAlignedInFourCharacters_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("line");
        QTest::newRow("two") << 2 << u"   2 x"_s;
        QTest::newRow("ten") << 10 << u"  10 x"_s;
        QTest::newRow("negative") << -2 << u"  -2 x"_s;
        QTest::newRow("wider than four") << 62097 << u"62097 x"_s;
    }

    void theLevelIsRightAlignedInFourCharacters()
    {
        QFETCH(int, level);
        m_fixture->start().log(level, u"x"_s);
        QTEST(m_fixture->lines().last(), "line");
    }

    void theEngineIsReachableWhileItExists()
    {
        QVERIFY(!cfg_utilitys::instance());
        cfg_utilitys &engine = m_fixture->start();
        QCOMPARE(cfg_utilitys::instance(), &engine);
        m_fixture->engine.reset();
        QVERIFY(!cfg_utilitys::instance());
    }

    void theStateIsFilled()
    {
        const RunState &state = m_fixture->start(u"-U -S -Lde-DE"_s).state();
        QVERIFY(state.runMode == RunMode::Uninstall);
        QVERIFY(state.silent);
        QVERIFY(!state.runComplete);
        QCOMPARE(state.locale, u"de-DE"_s);
        QCOMPARE(state.commonDesktop, m_fixture->machine.desktop);
        QCOMPARE(state.modeWords,
                 QStringList({u"Install"_s, u"UnInstall"_s, u"Found "_s, u" Success"_s, u" Failed"_s}));
        QVERIFY(state.pendingNotes.isEmpty());
    }

    void aMachineWithoutACommonDesktopLeavesItEmpty()
    {
        m_fixture->machine.desktop.clear();
        QCOMPARE(m_fixture->start().state().commonDesktop, QString());
    }

    void withoutAnOptionTheSystemsLocaleIsUsed()
    {
        QCOMPARE(m_fixture->start().state().locale, Nvx::Util::supportedSystemLocale());
    }

    void aRunWithoutOptionsHasNoMode() { QVERIFY(m_fixture->start().state().runMode == RunMode::NotGiven); }

    void theEscapedInstallDirDoublesEveryBackslash()
    {
        m_fixture->machine.ownFolder = m_fixture->test.path(u"NVX"_s) + u"\\a\\b"_s;
        const RunState &state = m_fixture->start(u"-I"_s).state();
        QCOMPARE(state.installDirEscaped, QString(state.installDir).replace(u'\\', "\\\\"_L1));
        QVERIFY(state.installDirEscaped.endsWith(u"\\\\a\\\\b"_s));
    }

    void theThirtyTwoBitPartOfTheRegistryIsDetected_data()
    {
        QTest::addColumn<QString>("subKey");
        QTest::newRow("it has a value") << QString();
        QTest::newRow("it has a key") << u"\\Run"_s;
    }

    void theThirtyTwoBitPartOfTheRegistryIsDetected()
    {
        QFETCH(QString, subKey);
        const auto windows32 =
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion"_s;
        // A Windows machine always has it.
        QCOMPARE(m_fixture->start().state().registry64, RegistryKey(windows32).hasEntries());
        QVERIFY(RegistryKey(windows32 + subKey).setText(u"a name"_s, u"a value"_s));
        QVERIFY(m_fixture->start().state().registry64);
        RegistryKey(windows32 + subKey).removeValue(u"a name"_s);
    }

    void anInstallAcceptsItsFolderAndWritesNoVariables_data() { addInstallRows(); }

    void anInstallAcceptsItsFolderAndWritesNoVariables()
    {
        QFETCH(QString, options);
        setMachineVariables(u"C:\\by the installer"_s);
        m_fixture->start(options);
        const QStringList lines = m_fixture->lines();
        const QString folder = m_fixture->test.installDir();
        const auto start =
            lines.indexOf(u"   0 Validating Installation Path Velmora NVX 2017 DIR="_s + folder);
        QVERIFY(start > 0);
        QCOMPARE(lines.at(start + 1), u"   0 Install Path OK "_s + folder);
        QCOMPARE(lines.at(start + 2), u"   0 user dir="_s);
        QCOMPARE(machineVariables(), QStringList(3, u"C:\\by the installer"_s));
        QVERIFY(m_fixture->machine.processVariables.isEmpty());
        QVERIFY(QDir(System::getUserDataPath()).exists());
    }

    void anInstallWithoutAFolderUsesTheWorkingFolderAndWritesTheVariables_data() { addInstallRows(); }

    void anInstallWithoutAFolderUsesTheWorkingFolderAndWritesTheVariables()
    {
        QFETCH(QString, options);
        setMachineVariables(u"C:\\by the installer"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_fixture->test.installDir()));
        m_fixture->machine.ownFolder.clear();
        const QString working = System::getWorkingDirPath();
        const RunState &state = m_fixture->start(options).state();
        QDir::setCurrent(before);

        QCOMPARE(state.installDir, working);
        QCOMPARE(state.installDirEscaped, QString(working).replace(u'\\', "\\\\"_L1));
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
        QTest::newRow("uninstall") << u"-U"_s;
        QTest::newRow("stop services") << u"-ST"_s;
        QTest::newRow("localisation") << u"-T"_s;
    }

    void everyOtherModeRemovesTheVariables()
    {
        QFETCH(QString, option);
        writeFile(m_fixture->installed("NVXSolver.exe"));
        setMachineVariables(m_fixture->test.installDir());
        QVERIFY(environment().setText(u"OSTRADE2016DIR"_s, u"C:\\old"_s));
        m_fixture->start(option);

        const QStringList lines = m_fixture->lines();
        const QString folder = m_fixture->test.installDir();
        const auto start =
            lines.indexOf(u"   0 Validating Installation Path Velmora NVX 2017 DIR="_s + folder);
        QVERIFY(start > 0);
        QCOMPARE(lines.at(start + 1), u"   0 Removing installation path environment variables."_s + folder);
        QVERIFY(!lines.contains(u"   0 user dir="_s));
        QCOMPARE(machineVariables(), QStringList(3, u"none"_s));
        QCOMPARE(environment().text(u"OSTRADE2016DIR"_s), std::optional<QString>(u"C:\\old"_s));
        QVERIFY(!QDir(System::getUserDataPath()).exists());
    }

    void anUninstallWithoutTheSolverOrAFolderUsesTheWorkingFolder_data()
    {
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("without the solver") << true;
        QTest::newRow("without a folder") << false;
    }

    void anUninstallWithoutTheSolverOrAFolderUsesTheWorkingFolder()
    {
        QFETCH(const bool, hasFolder);
        const QString folder = m_fixture->test.path(u"empty"_s);
        QVERIFY(QDir().mkdir(folder));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder));
        if (!hasFolder)
            m_fixture->machine.ownFolder.clear();
        const RunState &state = m_fixture->start(u"-U"_s).state();
        QDir::setCurrent(before);
        QCOMPARE(QDir(state.installDir).canonicalPath(), QDir(folder).canonicalPath());
    }

    void theWorkingFolderIsLoggedWhenItIsUsed()
    {
        const RunState &state = m_fixture->start(u"-U"_s).state();
        QCOMPARE(state.installDir, System::getWorkingDirPath());
        QVERIFY(m_fixture->lines().contains(
            u"   0 Program startup - Install path is empty or is invalid, resetting to:"_s +
            System::getWorkingDirPath()));
    }

    void anUnknownOptionShowsTheUsage()
    {
        m_fixture->start(u"-X -I"_s);
        QCOMPARE(m_fixture->machine.boxes.size(), 1);
        QVERIFY(m_fixture->machine.boxes.first().kind == Nvx::Util::BoxKind::Warning);
        QCOMPARE(m_fixture->machine.boxes.first().title, u"Command line arguments"_s);
        QVERIFY(
            m_fixture->machine.boxes.first().text.startsWith(u"Valid NVX command line arguments are:\n"_s));
        QVERIFY(m_fixture->engine->state().runMode == RunMode::Install);
    }

    void noInTheMessageBoxSkipsTheRestOfTheStartUp_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("No") << int(Nvx::Util::BoxAnswer::No);
        QTest::newRow("closed") << int(Nvx::Util::BoxAnswer::Dismissed);
    }

    void noInTheMessageBoxSkipsTheRestOfTheStartUp()
    {
        QFETCH(int, answer);
        m_fixture->machine.answer = static_cast<Nvx::Util::BoxAnswer>(answer);
        setMachineVariables(u"C:\\old"_s);
        const RunState &state = m_fixture->start(u"-U -X -S"_s).state();
        QVERIFY(state.runMode == RunMode::Uninstall);
        QVERIFY(!state.silent);
        QVERIFY(state.modeWords.isEmpty());
        QCOMPARE(state.installDirEscaped, QString());
        QCOMPARE(machineVariables(), QStringList(3, u"C:\\old"_s));
        QCOMPARE(m_fixture->lines().last(), u"   0 Command Line:NVXConfig.exe -U -X -S"_s);
    }

    void aLogThatCannotBeOpenedChangesNothingElse()
    {
        QVERIFY(QDir().mkpath(m_fixture->installed("NVXConfig.log"))); // a folder has that name
        const RunState &state = m_fixture->start(u"-I -S -Lde-DE"_s).state();
        QVERIFY(state.runMode == RunMode::Install);
        QCOMPARE(System::getLocale(), u"de-DE"_s);
        QVERIFY(QDir(System::getUserDataPath()).exists());
        m_fixture->engine->ProcessInstallation();
        QVERIFY(state.runComplete);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_start_up)
#include "tst_start_up.moc"
