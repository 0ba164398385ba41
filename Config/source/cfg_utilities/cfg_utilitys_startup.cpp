// The start of a run: the command line, the install dir and the variables that point at it.

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

namespace {

RegistryKey machineEnvironment()
{
    return RegistryKey(QStringLiteral(
        "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"));
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
    return {QStringLiteral("OSTRADE"), QStringLiteral("OSTRADE%1DIR").arg(Nvx::Product::release),
            QStringLiteral("OSTRADE%1TEMP").arg(Nvx::Product::release)};
}

} // namespace

void cfg_utilitys::processCommandLine()
{
    const QString commandLine = m_machine.commandLine().trimmed();
    log(LogLevel::step, tr("Command Line:") + commandLine);
    const CommandLineReading reading = readCommandLine(commandLine, Nvx::Util::supportedSystemLocale(),
                                                       [this] { return isUnknownOptionAccepted(); });
    m_state.runMode = reading.runMode;
    m_state.silent = reading.silent;
    m_state.locale = reading.locale;
    m_state.cadSearchSuppressed =
        reading.runMode == RunMode::StopServices || reading.runMode == RunMode::Localization;
    if (reading.abandoned)
        return;

    m_state.modeWords = modeWords();
    const RegistryKey windows32(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion"));
    m_state.registry64 = windows32.hasEntries();

    validateInstallDir();
    m_state.installDirEscaped = m_state.installDir;
    m_state.installDirEscaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    setUpLanguage(m_state.runMode == RunMode::NotGiven ? RunMode::Install : m_state.runMode);
}

bool cfg_utilitys::isUnknownOptionAccepted()
{
    const auto answer = m_machine.ask(Nvx::Util::BoxKind::Warning, tr("Command line arguments"), usageText());
    return answer == Nvx::Util::Answer::Yes;
}

void cfg_utilitys::validateInstallDir()
{
    const bool installs = m_state.runMode == RunMode::Install || m_state.runMode == RunMode::NotGiven;
    if (!installs) {
        log(LogLevel::step, tr("Validating Installation Path Velmora %1 %2 DIR=")
                                    .arg(Nvx::Product::name, Nvx::Product::release) +
                                m_state.installDir);
        const QString solver = Nvx::Util::joinPath(m_state.installDir, Nvx::Product::solverProgram);
        if (m_state.installDir.isEmpty() || !QFile::exists(solver))
            resetInstallDir();
        removeMachineVariables();
        return;
    }

    log(LogLevel::step, tr("Validating Installation Path Velmora NVX %1 DIR=").arg(Nvx::Product::release) +
                            m_state.installDir);
    if (m_state.installDir.isEmpty()) {
        resetInstallDir();
        writeMachineVariables();
    } else {
        // The installer has written the variables.
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
    const std::optional<QByteArray> value = Nvx::Util::toAnsi(m_state.installDir);
    const QStringList variables = installDirVariables();
    for (const QString &variable : variables) {
        environment.setText(variable, m_state.installDir);
        if (value)
            m_machine.setProcessVariable(variable.toLatin1(), *value);
        else
            log(LogLevel::failure,
                tr("The system's code page cannot write the folder, %1 is not set").arg(variable));
    }
}
