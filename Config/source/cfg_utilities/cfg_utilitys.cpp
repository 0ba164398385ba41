#include "cfg_utilities/cfg_utilitys.h"

#include "cfg_utilities/flag_file.h"
#include "localization/util_localization_tool.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "run/product_files.h"
#include "run/progress_view.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Nvx;
using namespace Qt::Literals::StringLiterals;

namespace {

cfg_utilitys *theEngine = nullptr;

constexpr int bannerWidth = 77;

} // namespace

cfg_utilitys::cfg_utilitys(Util::Machine &machine, QObject *parent)
    : QObject(parent)
    , m_machine(machine)
    , m_service(machine)
    , m_log(joinPath(machine.executableFolder(), Product::runLog))
{
    theEngine = this;
    m_state.installDir = machine.executableFolder();
    m_state.currentLocale = System::getLocale();
    // The log belongs to the other run until that ends.
    const std::optional<LogLine> waited = waitForOtherRun();
    m_log.open(true);
    writeStartUpBanner();
    if (waited)
        log(waited->level, waited->text);
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
    log(LogLevel::step, QString(bannerWidth, u'='));
    log(LogLevel::step, tr("Program startup - %1 DIR== %2").arg(Product::fullName, m_state.installDir));
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
    m_log.append(u"%1 %2 %3"_s.arg(now, QString::asprintf("%4d", level), text));
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
    // Without a GUI application there are no cursors, and Qt would read beyond its application object.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::restoreOverrideCursor();
    m_machine.tell(Util::BoxKind::Information, tr("NVX Configuration Utility"), text);
    log(level, text);
}

void cfg_utilitys::processFlagFile(const QString &name, RunMode mode)
{
    progress(LogLevel::step, tr("Processing ") + name);
    const QString folder = System::getFlagsDirPath();
    const QString path = joinPath(folder, name);
    const auto way = Util::HeldWay::toEntry(path);
    if (!isTrustedWay(context().reporter, way, path))
        return;
    Util::removeUnfinished(path);
    if (mode != RunMode::Install) {
        if (Engine::isUnchangedFlagFile(path)) {
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
    if (!Engine::createFlagFile(path))
        log(LogLevel::failure, tr("Unable to create %1").arg(path));
}
