// The start of a run: the command line, the install dir and the environment variables with its path.

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_utilities/command_line.h"
#include "nvx_util/code_page.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"

#include <QFile>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Nvx;
using namespace Qt::Literals::StringLiterals;

namespace {

RegistryKey machineEnvironment()
{
    return RegistryKey(
        u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"_s);
}

// The translations are loaded later, and the language may change during the run.
QStringList modeWords()
{
    return {QString::fromLatin1(QT_TRANSLATE_NOOP("cfg_utilitys", "Install")),
            QString::fromLatin1(QT_TRANSLATE_NOOP("cfg_utilitys", "UnInstall")),
            QString::fromLatin1(QT_TRANSLATE_NOOP("cfg_utilitys", "Found ")),
            QString::fromLatin1(QT_TRANSLATE_NOOP("cfg_utilitys", " Success")),
            QString::fromLatin1(QT_TRANSLATE_NOOP("cfg_utilitys", " Failed"))};
}

QStringList installDirVariables()
{
    return {u"OSTRADE"_s, u"OSTRADE%1DIR"_s.arg(Product::release), u"OSTRADE%1TEMP"_s.arg(Product::release)};
}

} // namespace

// Returns what the log says about it, once that is open.
std::optional<cfg_utilitys::LogLine> cfg_utilitys::waitForOtherRun()
{
    using namespace std::chrono_literals;
    Util::Turn turn = m_machine.waitForTurn(0ms);
    if (turn == Util::Turn::Ours)
        return std::nullopt;
    if (turn == Util::Turn::OtherRuns) {
        if (Engine::showsWindows(m_machine.commandLine())) {
            m_machine.tell(
                Util::BoxKind::Information, tr("NVX Configuration Utility"),
                tr("Another run of this program is in progress on this machine. This one continues when "
                   "that has ended, after %1 minutes at the latest.")
                    .arg(maxWaitForOtherRun.count()));
        }
        turn = m_machine.waitForTurn(maxWaitForOtherRun);
    }
    switch (turn) {
    case Util::Turn::Ours:
        return LogLine{LogLevel::step, tr("Another run was in progress; this one has waited for its end")};
    case Util::Turn::OtherRuns:
        return LogLine{
            LogLevel::failure,
            tr("Another run has been in progress for %1 minutes; this one no longer waits for its end")
                .arg(maxWaitForOtherRun.count())};
    case Util::Turn::Unknown:
        break;
    }
    return LogLine{LogLevel::failure,
                   tr("Unable to check whether another run is in progress; a program without "
                      "administrator rights may have prevented it")};
}

void cfg_utilitys::processCommandLine()
{
    const QString commandLine = m_machine.commandLine().trimmed();
    log(LogLevel::step, tr("Command Line:") + commandLine);
    const Engine::RunOptions options = Engine::readRunOptions(commandLine, Util::supportedSystemLocale(),
                                                              [this] { return isUnknownOptionAccepted(); });
    m_state.runMode = options.runMode;
    m_state.silent = options.silent;
    m_state.locale = options.locale;
    m_state.cadSearchSuppressed =
        options.runMode == RunMode::StopServices || options.runMode == RunMode::Localization;
    if (options.abandoned)
        return;

    m_state.modeWords = modeWords();
    const RegistryKey windows32(
        u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion"_s);
    m_state.registry64 = windows32.hasEntries();

    validateInstallDir();
    m_state.installDirEscaped = m_state.installDir;
    m_state.installDirEscaped.replace(u'\\', "\\\\"_L1);
    setUpLanguage(m_state.runMode == RunMode::NotGiven ? RunMode::Install : m_state.runMode);
}

bool cfg_utilitys::isUnknownOptionAccepted()
{
    const auto answer =
        m_machine.ask(Util::BoxKind::Warning, tr("Command line arguments"), Engine::runOptionsUsage());
    return answer == Util::BoxAnswer::Yes;
}

void cfg_utilitys::validateInstallDir()
{
    const bool installs = m_state.runMode == RunMode::Install || m_state.runMode == RunMode::NotGiven;
    if (!installs) {
        log(LogLevel::step,
            tr("Validating Installation Path Velmora %1 %2 DIR=").arg(Product::name, Product::release) +
                m_state.installDir);
        const QString solver = Util::joinPath(m_state.installDir, Product::solverProgram);
        if (m_state.installDir.isEmpty() || !QFile::exists(solver))
            resetInstallDir();
        removeMachineVariables();
        return;
    }

    log(LogLevel::step,
        tr("Validating Installation Path Velmora NVX %1 DIR=").arg(Product::release) + m_state.installDir);
    if (m_state.installDir.isEmpty()) {
        resetInstallDir();
        writeMachineVariables();
    } else {
        // The installer has already written the variables.
        log(LogLevel::step, tr("Install Path OK ") + m_state.installDir);
    }
    log(LogLevel::step, tr("user dir="));
    System::makePath(System::getUserDataPath());
}

void cfg_utilitys::resetInstallDir()
{
    m_state.installDir = System::getWorkingDirPath();
    log(LogLevel::step,
        tr("Program startup - Install path is empty or is invalid, resetting to:") + m_state.installDir);
}

void cfg_utilitys::removeMachineVariables()
{
    RegistryKey environment = machineEnvironment();
    const QStringList variables = installDirVariables();
    for (const QString &variable : variables)
        environment.removeValue(variable);
    log(LogLevel::step, tr("Removing installation path environment variables.") + m_state.installDir);
}

void cfg_utilitys::writeMachineVariables()
{
    RegistryKey environment = machineEnvironment();
    const std::optional<QByteArray> value = Util::toAnsi(m_state.installDir);
    const QStringList variables = installDirVariables();
    for (const QString &variable : variables) {
        environment.setText(variable, m_state.installDir);
        if (value)
            m_machine.setProcessVariable(variable.toLatin1(), *value);
        else
            log(LogLevel::failure,
                tr("The folder's path cannot be written in the system's code page; %1 is not set")
                    .arg(variable));
    }
}
