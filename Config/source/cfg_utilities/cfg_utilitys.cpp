#include "cfg_utilities/cfg_utilitys.h"

#include "cfg_utilities/flag_file.h"
#include "localization/util_localization_tool.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/command_runner.h"
#include "run/product_files.h"
#include "run/progress_view.h"
#include "setup/archive_components.h"
#include "setup/parallel_configuration.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

using Nvx::Util::joinPath;
using Nvx::Util::System;

namespace {

cfg_utilitys *theEngine = nullptr;

}

cfg_utilitys::cfg_utilitys(Nvx::Util::Machine &machine, QObject *parent)
    : QObject(parent)
    , m_machine(machine)
    , m_service(machine)
    , m_log(joinPath(machine.executableFolder(), Nvx::Product::runLog))
{
    theEngine = this;
    m_state.installDir = machine.executableFolder();
    m_state.currentLocale = System::getLocale();
    m_log.open(true);
    writeStartUpBanner();
    processCommandLine();
    m_state.runComplete = false;
    m_state.commonDesktop = machine.commonDesktopFolder();
}

cfg_utilitys::~cfg_utilitys()
{
    m_log.close();
    theEngine = nullptr;
}

cfg_utilitys *cfg_utilitys::instance()
{
    return theEngine;
}

void cfg_utilitys::writeStartUpBanner()
{
    log(LogLevel::step, QString());
    log(LogLevel::step, QString(77, QLatin1Char('=')));
    log(LogLevel::step, tr("Program startup - %1 DIR== %2").arg(Nvx::Product::fullName, m_state.installDir));
}

void cfg_utilitys::clearRunComplete()
{
    m_state.runComplete = false;
    if (m_progressView)
        m_progressView->runCompleteChanged();
}

void cfg_utilitys::log(int level, const QString &text)
{
    const QString now = QDateTime::currentDateTime().toString();
    m_log.append(QStringLiteral("%1 %2 %3").arg(now, QString::asprintf("%4d", level), text));
}

void cfg_utilitys::progress(int level, const QString &text)
{
    if (m_progressView)
        m_progressView->appendRow(text);
    QCoreApplication::processEvents();
    log(level, text);
}

void cfg_utilitys::inform(int level, const QString &text)
{
    // Without a window system there are no cursors, and Qt would read past its application object.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::restoreOverrideCursor();
    m_machine.tell(Nvx::Util::BoxKind::Information, tr("NVX Configuration Utility"), text);
    log(level, text);
}

void cfg_utilitys::processFlagFile(const QString &name, RunMode mode)
{
    progress(LogLevel::step, tr("Processing ") + name);
    const QString folder = System::getFlagsDirPath();
    const QString path = joinPath(folder, name);
    Nvx::Util::removeUnfinished(path);
    if (mode != RunMode::Install) {
        if (isUnchangedFlagFile(path)) {
            log(LogLevel::step, name + tr(" has not changed"));
            removeProductFile(path);
        } else {
            log(LogLevel::step, name + tr(" has changed, not removing"));
        }
        return;
    }
    if (QFile::exists(path))
        return;
    log(LogLevel::step, tr("Creating ") + name);
    System::makePath(folder);
    if (!createFlagFile(path))
        log(LogLevel::failure, tr("Unable to create %1").arg(path));
}

int cfg_utilitys::runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                             int timeoutMs)
{
    return CommandRunner(context()).runCommand(program, arguments, workFolder, timeoutMs);
}

bool cfg_utilitys::removeDirectory(const QString &path)
{
    return CommandRunner(context()).removeDirectory(path);
}

bool cfg_utilitys::removeMatchingFiles(const QString &folder, const QString &pattern)
{
    return CommandRunner(context()).removeMatchingFiles(folder, pattern);
}

int cfg_utilitys::installTutorials(RunMode mode)
{
    return ArchiveComponents(context()).installTutorials(mode);
}

int cfg_utilitys::installPython(RunMode mode)
{
    return ArchiveComponents(context()).installPython(mode);
}

int cfg_utilitys::installMertleServer(RunMode mode)
{
    return ArchiveComponents(context()).installMertleServer(mode);
}

void cfg_utilitys::createParallelConfiguration(RunMode mode, const Nvx::Util::CpuInfo &cpuInfo)
{
    ::createParallelConfiguration(context(), mode, cpuInfo);
}
