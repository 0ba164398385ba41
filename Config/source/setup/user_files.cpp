#include "setup/user_files.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/product_files.h"
#include "run/reporter.h"

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

UserFiles::UserFiles(const StepContext &context)
    : m_context(context)
{
}

void UserFiles::removeOldFiles()
{
    CommandRunner runner(m_context);
    const QString installDir = m_context.state.installDir;
    const QString sharedData = System::getProgramDataPath(Product::fullName);

    runner.removeMatchingFiles(installDir, u".NEW"_s);
    // A pattern with lower-case letters matches nothing, so this file stays. That is deliberate.
    runner.removeMatchingFiles(installDir, u"systeminfo2012.xml"_s);
    runner.removeDirectory(joinPath(m_context.machine.executableFolder(), u"Launchers"_s));
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + sharedData + u"*.dat"_s);
    runner.removeMatchingFiles(sharedData, u".DAT"_s);
    m_context.reporter.log(LogLevel::step, tr("Remove: Report .pyc files"));
    runner.removeMatchingFiles(joinPath(installDir, u"plugins/Reports"_s), u".PYC"_s);
}

void UserFiles::removeLog()
{
    // A pattern with lower-case letters matches nothing.
    CommandRunner(m_context).removeMatchingFiles(m_context.state.installDir, u"nvxconfig.log"_s);
}

void UserFiles::resetSorvane(RunMode mode)
{
    const QString folder = joinPath(System::getProgramDataPath(Product::fullName), u"Sorvane"_s);
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + folder);
    CommandRunner(m_context).removeDirectory(folder);
    m_context.reporter.progress(LogLevel::step, m_context.state.modeWord(mode) + tr(" Sorvane"));
    for (const auto &file : {u"qat.st"_s, u"ribbon2D.st"_s, u"flagset.usr"_s})
        removeProductFile(joinPath(System::getUserDataPath(), file));
}

void UserFiles::cleanLumara(RunMode mode)
{
    if (mode != RunMode::Uninstall)
        return;
    CommandRunner runner(m_context);
    const QString installDir = m_context.state.installDir;
    runner.removeDirectory(joinPath(installDir, u"WebServices"_s));
    // Patterns with lower-case letters match nothing, so these files stay. That is deliberate.
    for (const auto &pattern : {u"Lumara.log"_s, u"lumara.xml"_s, u"Kelvane_2014_WF50.dll"_s})
        runner.removeMatchingFiles(installDir, pattern);
}

} // namespace Nvx::Setup
