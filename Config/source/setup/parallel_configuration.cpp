#include "setup/parallel_configuration.h"

#include "nvx_io/nvx2_config_file.h"
#include "nvx_util/code_page.h"
#include "nvx_util/cpu_info.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>

using Nvx::Io::Nvx2ConfigFile;
using Nvx::Util::joinPath;
using Nvx::Util::System;
using Nvx::Util::toStdString;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ParallelConfiguration)
};

bool canBeWritten(const QStringList &texts)
{
    return Util::toAnsi(texts.join(u'\n')).has_value();
}

bool save(const QString &path, const QString &sharedFolder, const QString &analysisFolder,
          const Util::CpuInfo &cpuInfo)
{
    if (!canBeWritten({path, sharedFolder, analysisFolder}))
        return false;

    const qint32 cores = cpuInfo.coresPerProcessor();
    // For the solver, a negative number means that hyper-threading is on.
    const qint32 mpi = cpuInfo.isHyperThreadingOn() ? -cores : cores;
    const qint32 processors = cpuInfo.processorCount();

    Nvx2ConfigFile configuration;
    configuration.setting(Nvx2ConfigFile::ExePath).setValue(toStdString(sharedFolder));
    configuration.setting(Nvx2ConfigFile::AnalyzePath).setValue(toStdString(analysisFolder));
    configuration.setting(Nvx2ConfigFile::NumberOfThreads).setValue(std::to_string(cores));
    configuration.setting(Nvx2ConfigFile::Mpi).setValue(std::to_string(mpi));
    configuration.setting(Nvx2ConfigFile::SocketsPerNode).setValue(std::to_string(processors));
    return configuration.saveTo(toStdString(path));
}

} // namespace

void createParallelConfiguration(const StepContext &context, RunMode mode, const Util::CpuInfo &cpuInfo)
{
    const QString sharedData = System::getProgramDataPath(Product::fullName);
    const QString file = joinPath(sharedData, QString::fromLatin1(Nvx2ConfigFile::DefaultName));
    Util::removeUnfinished(file);
    if (mode != RunMode::Install)
        return;

    const QString sharedFolder = joinPath(context.machine.executableFolder(), u"NVX2_share"_s);
    const QString analysisFolder = joinPath(sharedData, u"HPCAnalyze"_s);

    const auto way = Util::HeldWay::toEntry(file);
    const bool isTrusted = isTrustedWay(context.reporter, way, sharedData);
    if (isTrusted)
        System::makePath(sharedData);
    if (isTrusted && save(file, sharedFolder, analysisFolder, cpuInfo))
        context.reporter.log(LogLevel::step,
                             Messages::tr("Created NVX2 default configuration: %1").arg(file));
    else
        context.reporter.log(LogLevel::failure,
                             Messages::tr("Unable to create NVX2 default configuration: %1").arg(file));

    if (isTrusted && QDir(sharedData).mkpath(analysisFolder))
        context.reporter.log(LogLevel::step,
                             Messages::tr("Created NVX2 analyze folder: %1").arg(analysisFolder));
    else
        context.reporter.log(LogLevel::failure,
                             Messages::tr("Unable to create NVX2 analyze folder: %1").arg(analysisFolder));
}

} // namespace Nvx::Setup
