#pragma once

#include "cad/cad_packages.h"
#include "cad/launcher_check_boxes.h"
#include "cad/shared_folders.h"
#include "nvx_util/log.h"
#include "run/command_runner.h"
#include "run/process_finder.h"
#include "run/reporter.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "service/nvx_service.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

namespace Nvx::Run {
class ProgressView;
}
namespace Nvx::Util {
class CpuInfo;
}
namespace Nvx::Cad {
struct LauncherStep;
}
namespace util {
class util_localization_tool;
}

namespace Nvx::Engine {

/// What to do with the leftovers of earlier releases and runs.
enum class OldFiles
{
    Keep,
    Remove
};

} // namespace Nvx::Engine

/// The configuration engine: the state of one configuration run, its log, and every installation step as one
/// of its operations. A process has one engine, which lives until the process ends and outlives the wizards.
/// Everything runs on the user interface's thread. No operation throws, and none stops the run: failures are
/// logged.
class cfg_utilitys final : public QObject, public Nvx::Run::Reporter
{
    Q_OBJECT

public:
    using OnMatch = Nvx::Run::OnMatch;
    using RunMode = Nvx::Run::RunMode;

    /// How long a run waits for another one to end.
    static constexpr std::chrono::minutes maxWaitForOtherRun{10};

    /// Waits for another run of this program to end, opens the log "NVXConfig.log" in the machine's
    /// executable folder, reads the command line, validates the install dir and sets up the language. A
    /// message box says what a run with windows waits for; for an unknown option one asks what to do.
    explicit cfg_utilitys(Nvx::Util::Machine &machine, QObject *parent = nullptr);
    ~cfg_utilitys() override;

    /// The process's engine; null before it exists.
    static cfg_utilitys *instance();

    const Nvx::Run::RunState &state() const { return m_state; }

    /// Sets the mode of the run. The wizard turns a run without a mode into an installation.
    void setRunMode(RunMode mode) { m_state.runMode = mode; }

    /// Adds a line to those that are logged first when the installation run starts.
    void addPendingNote(const QString &note) { m_state.pendingNotes.append(note); }

    /// Sets where progress lines are shown; null if they are not. The view must outlive its use.
    void setProgressView(Nvx::Run::ProgressView *view) { m_progressView = view; }

    /// The CAD systems found by the last search.
    const Nvx::Cad::CadPackages &cadPackages() const { return m_cadPackages; }

    /// Sets the check boxes that decide which launchers are configured; null for those of a run without a
    /// page. They must outlive their use.
    void setLauncherCheckBoxes(Nvx::Cad::LauncherCheckBoxes *checkBoxes)
    {
        m_launcherCheckBoxes = checkBoxes ? checkBoxes : &m_unshownCheckBoxes;
    }

    /// Sets the folders of the CAD systems that do not depend on where these are installed.
    void setSharedFolders(const Nvx::Cad::SharedFolders &folders) { m_sharedFolders = folders; }

    /// Searches the machine for CAD systems, stores the results and sets the check boxes. Does nothing in a
    /// run that suppresses the search.
    void searchCADPackages();

    // The guards against running programs; see process_guard.h.
    bool checkRunningCAD();
    bool checkRunningProduct(OnMatch onMatch);

    /// Called before a run starts: runComplete is false until the run ends.
    void clearRunComplete();

    void log(int level, const QString &text) override;
    void progress(int level, const QString &text) override;
    void inform(int level, const QString &text) override;

    /// Sets the product's language to the run's: remembers it and, on install, copies its files. Mode is the
    /// mode that the run is treated as.
    void setUpLanguage(RunMode mode);

    /// Changes the language of the run and of the product during an installation. The shortcuts are created
    /// again.
    void changeLanguage(const QString &locale);

    /// On install, creates a marker file in the flags folder if it is missing; in other modes, removes it
    /// unless text was written into it.
    void processFlagFile(const QString &name, RunMode mode);

    // The steps, and what they share. They only forward to the functions and classes of the modules setup,
    // run and service, whose headers describe them.
    int runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                   int timeoutMs = Nvx::Run::CommandRunner::usualTimeoutMs);
    bool removeDirectory(const QString &path);
    bool removeMatchingFiles(const QString &folder, const QString &pattern);
    int installTutorials(RunMode mode);
    int installPython(RunMode mode);
    int installMertleServer(RunMode mode);
    void createParallelConfiguration(RunMode mode, const Nvx::Util::CpuInfo &cpuInfo);
    int updateRegistry(RunMode mode);
    int configureViewer(RunMode mode);
    int createFileAssociations(RunMode mode);
    int createShortcuts(RunMode mode);
    int createShortcut(const QString &target, const QString &linkPath, const QString &description,
                       const QString &iconPath, const QString &arguments);
    void cleanLumara(RunMode mode);

    // The launchers of single CAD systems; see cad/cad_systems.h.
    void installCreoLauncher(RunMode mode);
    void installBrevantLauncher(RunMode mode);
    void installSolidWorksLauncher(RunMode mode);
    void installNXLauncher(RunMode mode);
    void installTamselLauncher(RunMode mode);
    void installTamselAddin(RunMode mode, int year);
    void installSpaceClaimLauncher(RunMode mode);

    /// The launchers of all CAD systems, in the order of cadSystems().
    void installLaunchers(RunMode mode);

    int checkMaterialDatabase(RunMode mode);
    void resetSorvane(RunMode mode);

    /// Removes old files and closes the log, so later lines are lost; or does nothing.
    void removeOldFiles(Nvx::Engine::OldFiles treatment);

    /// Registers the product's server as a service and starts it. Returns 0, 1 if the server program is
    /// missing or 2 if it did not register itself; a message box reports 1 and 2.
    int installServer();

    /// Stops the server, removes its service and its work folders. Always returns 0.
    int uninstallServer();

    /// Uninstalls the server, and on install installs it again. Always returns 0.
    int stopServices(RunMode mode);

public slots:
    /// Creates the localisation tool, unless it exists.
    void initLocalizationTool();

    /// The localisation tool; null before initLocalizationTool.
    util::util_localization_tool *getLtool() const { return m_localizationTool.get(); }

    /// Performs one installation run: calls every step of installation_steps.cpp in its order.
    void ProcessInstallation();

private:
    Nvx::Run::StepContext context() { return {m_machine, *this, m_state}; }
    Nvx::Cad::LauncherStep launcherStep(RunMode mode);

    struct LogLine
    {
        int level;
        QString text;
    };
    std::optional<LogLine> waitForOtherRun();
    void writeStartUpBanner();
    void processCommandLine();
    bool isUnknownOptionAccepted();
    void validateInstallDir();
    void resetInstallDir();
    void removeMachineVariables();
    void writeMachineVariables();

    void switchLanguage(const QString &locale);
    void installLanguageFiles();
    void installSolverResources();
    void createFlagsFile();

    std::shared_ptr<void> holdLogoff();
    void reportPendingNotes();
    void reportProcessors(const Nvx::Util::CpuInfo &cpuInfo);

    Nvx::Util::Machine &m_machine;
    NvxService m_service;
    Nvx::Run::RunState m_state;
    Nvx::Util::Log m_log;
    std::unique_ptr<util::util_localization_tool> m_localizationTool;
    Nvx::Run::ProgressView *m_progressView = nullptr;
    Nvx::Cad::CadPackages m_cadPackages;
    Nvx::Cad::SharedFolders m_sharedFolders;
    Nvx::Cad::UnshownCheckBoxes m_unshownCheckBoxes;
    Nvx::Cad::LauncherCheckBoxes *m_launcherCheckBoxes = &m_unshownCheckBoxes;
};
