#include "setup/archive_components.h"

#include "nvx_util/machine.h"
#include "nvx_util/registry.h"
#include "nvx_util/system.h"
#include "run/reporter.h"

#include <array>

using Nvx::Util::joinPath;

ArchiveComponents::ArchiveComponents(const StepContext &context)
    : m_context(context)
    , m_runner(context)
{
}

int ArchiveComponents::installTutorials(RunMode mode)
{
    const QString tutorials = Nvx::Util::System::getTutorialsDirPath();
    m_runner.removeDirectory(tutorials);
    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Tutorials"));
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Tutorials"));
    unpack(joinPath(m_context.state.installDir, QStringLiteral("en-US/Examples.7z")), tutorials,
           CommandRunner::usualTimeoutMs);
    return 0;
}

int ArchiveComponents::installPython(RunMode mode)
{
    const QString python = joinPath(m_context.machine.executableFolder(), QStringLiteral("Python"));
    m_runner.removeDirectory(joinPath(python, QStringLiteral("DLLs")));
    m_runner.removeDirectory(joinPath(python, QStringLiteral("Lib")));
    m_runner.removeMatchingFiles(joinPath(python, QStringLiteral("Ostrade/NVX")), QStringLiteral(".PYC"));
    m_context.reporter.progress(LogLevel::step,
                                m_context.state.modeWord(mode) + tr(" Python (locally for NVX)"));
    if (mode == RunMode::Uninstall)
        m_runner.removeDirectory(python);
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Python"));
    const auto processor = QStringLiteral("x64");
    unpack(joinPath(python, QStringLiteral("python26_%1.7z").arg(processor)), python,
           CommandRunner::noTimeout);
    return 0;
}

int ArchiveComponents::installMertleServer(RunMode mode)
{
    std::array<wchar_t, 32768> buffer; // no path is longer
    Nvx::Util::Registry::readKelvaneTranslatorsFolder(buffer.data(), buffer.size());
    const QString translators = QString::fromWCharArray(buffer.data());
    const QString mertle = joinPath(translators, QStringLiteral("NVX_MertleServer"));

    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Mertle Server"));
    if (translators.isEmpty()) {
        m_context.reporter.log(LogLevel::step,
                               tr("There is no translators folder, the Mertle Server is left alone"));
        return 0;
    }
    if (mode == RunMode::Uninstall)
        m_runner.removeDirectory(mertle);
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Mertle Server"));
    unpack(joinPath(mertle, QStringLiteral("NVX_MertleServer.7z")), mertle, CommandRunner::noTimeout);
    return 0;
}

void ArchiveComponents::unpack(const QString &archive, const QString &folder, int timeoutMs)
{
    const QString installDir = m_context.state.installDir;
    m_runner.runCommand(joinPath(installDir, QStringLiteral("7z.exe")),
                        {QStringLiteral("x"), archive, QStringLiteral("-y"), QStringLiteral("-o") + folder},
                        installDir, timeoutMs);
}
