#pragma once

#include "cad/cad_packages.h"
#include "cad/shared_folders.h"
#include "nvx_util/system.h"
#include "run/launcher_boxes.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_machine.h"

#include <QTest>

#include <array>
#include <utility>

/// What a launcher step is handed, on a machine whose folders lie in a fresh test folder. No CAD system is
/// found and no box ticked until the test says so.
class LauncherFixture
{
public:
    LauncherFixture()
    {
        state.installDir = test.installDir();
        state.modeWords = QStringList{QStringLiteral("Install"), QStringLiteral("UnInstall")};
        machine.ownFolder = state.installDir;
        folders.applicationDataOfOld = test.path(QStringLiteral("of old"));
        folders.applicationData = test.path(QStringLiteral("of today"));
        folders.spaceClaimAddin = test.path(QStringLiteral("Addins/NVX_2017_SpaceClaim"));
    }

    StepContext context() { return {machine, reporter, state}; }

    void tick(Launcher launcher) { boxes.setFound(launcher, true); }

    /// A path below the install dir, named with "/".
    QString installed(const char *name) const
    {
        return Nvx::Util::joinPath(state.installDir, QString::fromUtf8(name));
    }

    /// What was reported since the last call.
    QStringList takeLines() { return std::exchange(reporter.lines, {}); }

    TestMachine test;
    RecordingMachine machine;
    RecordingReporter reporter;
    RunState state;
    CadPackages packages;
    SharedFolders folders;
    UnshownLauncherBoxes boxes;
};

/// The modes in which a launcher step removes: every one but install.
inline const std::array<std::pair<const char *, RunMode>, 4> removingModes{
    {{"uninstall", RunMode::Uninstall},
     {"stop services", RunMode::StopServices},
     {"localization", RunMode::Localization},
     {"not given", RunMode::NotGiven}}};

/// A row of test data, with the column "mode", for each of these modes.
inline void addRemovingModes()
{
    QTest::addColumn<RunMode>("mode");
    for (const auto &[name, mode] : removingModes)
        QTest::newRow(name) << mode;
}
