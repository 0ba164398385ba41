#include "cad/brevant/brevant.h"

#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "run/reporter.h"

#include <QCoreApplication>

#include <limits>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

// Release 19 is Brevant 2015.
constexpr int yearOfReleaseZero = 1996;

// The year of the version that ran last, from "RELEASE.REST"; std::nullopt before 2015.
std::optional<int> yearOfLastRun(const QString &lastVersionRun)
{
    const QStringList parts = lastVersionRun.split(u'.', Qt::SkipEmptyParts);
    if (parts.size() < 2)
        return std::nullopt;
    constexpr int newestRelease = std::numeric_limits<int>::max() - yearOfReleaseZero;
    const int release = parts.first().toInt(); // 0 if it is not a number
    if (release <= 18 || release > newestRelease)
        return std::nullopt;
    return release + yearOfReleaseZero;
}

} // namespace

std::optional<QString> detectBrevant(Detection &detection)
{
    CadPackages &packages = detection.packages;
    const QString lastVersionRun = detection.registry.valueOf(
        u"HKEY_LOCAL_MACHINE\\Software\\Velmora\\Brevant\\Current Version"_s, u"LASTVERSIONRUN"_s);
    detection.log(u"Brevant lastversionrun="_s + lastVersionRun);
    packages.brevantVersion = yearOfLastRun(lastVersionRun).value_or(0);

    for (int release = 19; release <= 21; ++release) {
        const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Brevant\\RegistryVersion%1.0"_s;
        if (detection.registry.valueOf(key.arg(release), u"ProductName"_s).isEmpty())
            continue;
        packages.brevantVersion = release + yearOfReleaseZero;
        packages.brevantVersions += QString::number(packages.brevantVersion) + u' ';
    }

    detection.logFound(u"Brevant="_s + packages.brevantVersions);
    if (packages.brevantVersion == 0)
        return std::nullopt;
    // The label has no year if only the last run is known.
    return u"Brevant "_s + packages.brevantVersions;
}

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(BrevantLauncher)
};

} // namespace

void installBrevantLauncher(const LauncherStep &step)
{
    if (!step.isChecked(Launcher::Brevant))
        return;
    step.context.reporter.progress(LogLevel::step, Messages::tr("Configure Brevant"));
    configureComLibrary(step, u"Launchers/Brevant/NVX_2017_Brevant.dll"_s);
}

} // namespace Nvx::Cad
