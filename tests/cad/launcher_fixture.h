#pragma once

#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "cad/shared_folders.h"
#include "nvx_util/system.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_machine.h"

#include <QTest>

#include <array>
#include <utility>

/// What a launcher's step works with, on a machine whose folders are in a fresh test folder. At first no CAD
/// system is found and no check box is checked.
class LauncherFixture
{
public:
    LauncherFixture()
    {
        state.installDir = test.installDir();
        state.modeWords = QStringList{QStringLiteral("Install"), QStringLiteral("UnInstall")};
        machine.ownFolder = state.installDir;
        folders.formerApplicationData = test.path(QStringLiteral("former"));
        folders.applicationData = test.path(QStringLiteral("present"));
        folders.spaceClaimAddin = test.path(QStringLiteral("Addins/NVX_2017_SpaceClaim"));
    }

    Nvx::Cad::LauncherStep step(Nvx::Run::RunMode mode)
    {
        return {{machine, reporter, state}, packages, checkBoxes, folders, mode};
    }

    void check(Nvx::Cad::Launcher launcher) { checkBoxes.setFound(launcher, true); }

    /// A path below the install dir, with "/".
    QString installed(const char *name) const
    {
        return Nvx::Util::joinPath(state.installDir, QString::fromUtf8(name));
    }

    /// The lines reported since the last call.
    QStringList takeLines() { return std::exchange(reporter.lines, {}); }

    TestMachine test;
    RecordingMachine machine;
    RecordingReporter reporter;
    Nvx::Run::RunState state;
    Nvx::Cad::CadPackages packages;
    Nvx::Cad::SharedFolders folders;
    Nvx::Cad::UnshownCheckBoxes checkBoxes;
};

/// The modes in which a launcher's step removes: all but install.
inline const std::array<std::pair<const char *, Nvx::Run::RunMode>, 4> removingModes{
    {{"uninstall", Nvx::Run::RunMode::Uninstall},
     {"stop services", Nvx::Run::RunMode::StopServices},
     {"localization", Nvx::Run::RunMode::Localization},
     {"not given", Nvx::Run::RunMode::NotGiven}}};

/// Adds a row of test data for each of these modes, with the column "mode".
inline void addRemovingModes()
{
    QTest::addColumn<Nvx::Run::RunMode>("mode");
    for (const auto &[name, mode] : removingModes)
        QTest::newRow(name) << mode;
}
