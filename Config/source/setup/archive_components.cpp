#include "setup/archive_components.h"

#include "nvx_util/folder_rights.h"
#include "nvx_util/machine.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QDir>
#include <QFileInfo>

#include <array>

using Nvx::Util::joinPath;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

// No path on Windows is longer, in 16-bit characters.
constexpr qsizetype maxPathLength = 32768;

} // namespace

ArchiveComponents::ArchiveComponents(const StepContext &context)
    : m_context(context)
    , m_runner(context)
{
}

int ArchiveComponents::installTutorials(RunMode mode)
{
    const QString tutorials = Util::System::getTutorialsDirPath();
    m_runner.removeDirectory(tutorials);
    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Tutorials"));
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Tutorials"));
    unpackTutorials(tutorials);
    return 0;
}

// All users may create folders in the parent of the tutorials' one, and users may write what the tutorials
// contain. So the folder exists, and is for administrators only, until everything is unpacked.
void ArchiveComponents::unpackTutorials(const QString &tutorials)
{
    const auto way = Util::HeldWay::toFolder(QFileInfo(tutorials).path());
    if (!isTrustedWay(m_context.reporter, way, tutorials))
        return;
    if (Util::System::makePath(tutorials))
        reserveFolder(m_context.reporter, tutorials);
    unpack(joinPath(m_context.state.installDir, u"en-US/Examples.7z"_s), tutorials,
           CommandRunner::usualTimeoutMs);
    Util::inheritRights(tutorials);
    QDir().rmdir(tutorials); // fails unless nothing was unpacked
}

int ArchiveComponents::installPython(RunMode mode)
{
    const QString python = joinPath(m_context.machine.executableFolder(), u"Python"_s);
    m_runner.removeDirectory(joinPath(python, u"DLLs"_s));
    m_runner.removeDirectory(joinPath(python, u"Lib"_s));
    m_runner.removeMatchingFiles(joinPath(python, u"Ostrade/NVX"_s), u".PYC"_s);
    m_context.reporter.progress(LogLevel::step,
                                m_context.state.modeWord(mode) + tr(" Python (locally for NVX)"));
    if (mode == RunMode::Uninstall)
        m_runner.removeDirectory(python);
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Python"));
    const auto processor = u"x64"_s;
    unpack(joinPath(python, u"python26_%1.7z"_s.arg(processor)), python, CommandRunner::noTimeout);
    return 0;
}

int ArchiveComponents::installMertleServer(RunMode mode)
{
    std::array<wchar_t, maxPathLength> buffer;
    Util::Registry::readKelvaneTranslatorsFolder(buffer.data(), buffer.size());
    const QString translators = QString::fromWCharArray(buffer.data());
    const QString mertle = joinPath(translators, u"NVX_MertleServer"_s);

    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Mertle Server"));
    if (translators.isEmpty()) {
        m_context.reporter.log(
            LogLevel::step,
            tr("No translators folder is set; the Mertle Server is not installed or removed"));
        return 0;
    }
    if (mode == RunMode::Uninstall)
        m_runner.removeDirectory(mertle);
    if (mode != RunMode::Install)
        return 0;

    m_context.reporter.log(LogLevel::step, tr("Installing Mertle Server"));
    unpack(joinPath(mertle, u"NVX_MertleServer.7z"_s), mertle, CommandRunner::noTimeout);
    return 0;
}

void ArchiveComponents::unpack(const QString &archive, const QString &folder, int timeoutMs)
{
    const QString installDir = m_context.state.installDir;
    const auto way = Util::HeldWay::toFolder(folder);
    if (!isTrustedWay(m_context.reporter, way, folder))
        return;
    m_runner.runCommand(joinPath(installDir, u"7z.exe"_s), {u"x"_s, archive, u"-y"_s, u"-o"_s + folder},
                        installDir, timeoutMs);
}

} // namespace Nvx::Setup
