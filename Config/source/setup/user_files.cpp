#include "setup/user_files.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/product_files.h"
#include "run/reporter.h"

using Nvx::Util::joinPath;
using Nvx::Util::System;

UserFiles::UserFiles(const StepContext &context)
    : m_context(context)
{
}

void UserFiles::removeOldFiles()
{
    CommandRunner runner(m_context);
    const QString installDir = m_context.state.installDir;
    const QString sharedData = System::getProgramDataPath(Nvx::Product::fullName);

    runner.removeMatchingFiles(installDir, QStringLiteral(".NEW"));
    // A pattern with small letters matches nothing, so this file stays.
    runner.removeMatchingFiles(installDir, QStringLiteral("systeminfo2012.xml"));
    runner.removeDirectory(joinPath(m_context.machine.executableFolder(), QStringLiteral("Launchers")));
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + sharedData + QStringLiteral("*.dat"));
    runner.removeMatchingFiles(sharedData, QStringLiteral(".DAT"));
    m_context.reporter.log(LogLevel::step, tr("Remove: Report .pyc files"));
    runner.removeMatchingFiles(joinPath(installDir, QStringLiteral("plugins/Reports")),
                               QStringLiteral(".PYC"));
}

void UserFiles::removeLog()
{
    // A pattern with small letters matches nothing, so the log stays.
    CommandRunner(m_context).removeMatchingFiles(m_context.state.installDir, QStringLiteral("nvxconfig.log"));
}

void UserFiles::resetSorvane(RunMode mode)
{
    const QString folder =
        joinPath(System::getProgramDataPath(Nvx::Product::fullName), QStringLiteral("Sorvane"));
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + folder);
    CommandRunner(m_context).removeDirectory(folder);
    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Sorvane"));
    for (const auto &file :
         {QStringLiteral("qat.st"), QStringLiteral("ribbon2D.st"), QStringLiteral("flagset.usr")})
        removeProductFile(joinPath(System::getUserDataPath(), file));
}
