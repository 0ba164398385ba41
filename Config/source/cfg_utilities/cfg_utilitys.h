#pragma once

#include "cad/cad_packages.h"
#include "cad/shared_folders.h"
#include "nvx_util/log.h"
#include "run/launcher_boxes.h"
#include "run/process_finder.h"
#include "run/reporter.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "service/nvx_service.h"

#include <QObject>

#include <memory>

namespace Nvx::Util {
class CpuInfo;
}
class ProgressView;
namespace util {
class util_localization_tool;
}

/// What becomes of the files that earlier releases and runs have left.
enum class OldFiles
{
    Keep,
    Remove
};

/// The configuration engine: the state of one configuration run, its log, and every installation step as one
/// of its operations. There is one in a process; it lives as long as the process and outlives the wizards
/// that are built on it. Everything runs on the thread of the user interface. No operation throws, and none
/// stops the run: what fails is logged.
class cfg_utilitys final : public QObject, public Reporter
{
    Q_OBJECT

public:
    /// Opens the log "NVXConfig.log" in the machine's executable folder, reads the command line, validates
    /// the install dir and sets up the language. An unknown option brings up a box.
    explicit cfg_utilitys(Nvx::Util::Machine &machine, QObject *parent = nullptr);
    ~cfg_utilitys() override;

    /// The process's engine; null before it exists.
    static cfg_utilitys *instance();

    const RunState &state() const { return m_state; }

    /// Sets the mode of the run: the wizard takes a run without a mode for an installation.
    void setRunMode(RunMode mode) { m_state.runMode = mode; }

    /// Adds a line to those told first when the installation run starts.
    void addPendingNote(const QString &note) { m_state.pendingNotes.append(note); }

    /// Where progress lines are shown from now on; null for nowhere. The view must outlive its use.
    void setProgressView(ProgressView *view) { m_progressView = view; }

    /// The CAD systems found by the last search.
    const CadPackages &cadPackages() const { return m_cadPackages; }

    /// The boxes that decide which launchers are configured from now on; null for those of a run without a
    /// page. The boxes must outlive their use.
    void setLauncherBoxes(LauncherBoxes *boxes) { m_launcherBoxes = boxes ? boxes : &m_unshownBoxes; }

    /// Where the launcher steps look from now on for the folders of the CAD systems that have a place of
    /// their own on the machine.
    void setSharedFolders(const SharedFolders &folders) { m_sharedFolders = folders; }

    /// Searches the machine for CAD systems: keeps what it finds and sets the boxes. Does nothing in a run
    /// that suppresses the search.
    void searchCADPackages();

    // The guards against running programs; see process_guard.h.
    bool checkRunningCAD();
    bool checkRunningProduct(OnMatch onMatch);

    /// A run is about to start: until it ends, runComplete is false.
    void clearRunComplete();

    void log(int level, const QString &text) override;
    void progress(int level, const QString &text) override;
    void inform(int level, const QString &text) override;

    /// Makes the run's language the product's: remembers it, and on install puts its files in place. The mode
    /// is the one the run is taken for.
    void setUpLanguage(RunMode mode);

    /// Makes another language the run's and the product's in the course of an installation. The shortcuts are
    /// made anew.
    void changeLanguage(const QString &locale);

    /// Keeps a marker file in the flags folder: on install it is made when missing, else it is removed if
    /// nobody has written into it.
    void processFlagFile(const QString &name, RunMode mode);

    // The steps; each does what the class or the header of its name in the modules of the steps says.
    int runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                   int timeoutMs = 30000);
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

    // The launchers in the CAD systems. Each step decides for itself, by its box and what the search has
    // found, whether it acts; see the headers in the folder cad.
    void installCreoLauncher(RunMode mode);
    void installBrevantLauncher(RunMode mode);
    void installSolidWorksLauncher(RunMode mode);
    void installNXLauncher(RunMode mode);
    void installTamselLauncher(RunMode mode);
    void installTamselAddin(RunMode mode, int year);
    void installSpaceClaimLauncher(RunMode mode);

    /// The launchers of all CAD systems, in their order.
    void installLaunchers(RunMode mode);

    // The material database and the users' files; see the classes MaterialDatabase and UserFiles.
    int checkMaterialDatabase(RunMode mode);
    void resetSorvane(RunMode mode);

    /// Removes old files, or does nothing. Afterwards the log is closed: what is logged later is lost.
    void removeOldFiles(OldFiles treatment);

    /// Registers the product's server as a service and starts it. Returns 0, 1 when the server program is
    /// missing or 2 when it did not register itself; for these a box tells the user.
    int installServer();

    /// Stops the server and removes its service and the folders that it works in. Always returns 0.
    int uninstallServer();

    /// Uninstalls the server, and on install installs it again. Always returns 0.
    int stopServices(RunMode mode);

public slots:
    /// Makes the localisation tool, once.
    void initLocalizationTool();

    /// The localisation tool; null before initLocalizationTool.
    util::util_localization_tool *getLtool() const { return m_localizationTool.get(); }

    /// Performs one whole run: every step in its order, each told the run mode.
    void ProcessInstallation();

private:
    StepContext context() { return {m_machine, *this, m_state}; }

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

    void tellPendingNotes();
    void tellProcessors(const Nvx::Util::CpuInfo &cpuInfo);

    Nvx::Util::Machine &m_machine;
    NvxService m_service;
    RunState m_state;
    Nvx::Util::Log m_log;
    std::unique_ptr<util::util_localization_tool> m_localizationTool;
    ProgressView *m_progressView = nullptr;
    CadPackages m_cadPackages;
    SharedFolders m_sharedFolders;
    UnshownLauncherBoxes m_unshownBoxes;
    LauncherBoxes *m_launcherBoxes = &m_unshownBoxes;
};
