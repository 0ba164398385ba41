#include "cad/cad_detectors.h"

#include <limits>
#include <optional>

namespace {

// Release 19 is the one of 2015.
constexpr int yearOfReleaseZero = 1996;

// The year of the version that ran last, written as "RELEASE.REST"; nothing for the releases before 2015.
std::optional<int> yearOfLastRun(const QString &lastVersionRun)
{
    const QStringList parts = lastVersionRun.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    if (parts.size() < 2)
        return std::nullopt;
    constexpr int newestRelease = std::numeric_limits<int>::max() - yearOfReleaseZero;
    const int release = parts.first().toInt(); // 0 for anything but a number
    if (release <= 18 || release > newestRelease)
        return std::nullopt;
    return release + yearOfReleaseZero;
}

} // namespace

void detectBrevant(const Detection &detection)
{
    CadPackages &packages = detection.packages();
    const QString lastVersionRun = detection.registry.valueOf(
        QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora\\Brevant\\Current Version"),
        QStringLiteral("LASTVERSIONRUN"));
    detection.log(QStringLiteral("Brevant lastversionrun=") + lastVersionRun);
    packages.brevantVersion = yearOfLastRun(lastVersionRun).value_or(0);

    for (int release = 19; release <= 21; ++release) {
        const QString key =
            QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Brevant\\RegistryVersion%1.0");
        if (detection.registry.valueOf(key.arg(release), QStringLiteral("ProductName")).isEmpty())
            continue;
        packages.brevantVersion = release + yearOfReleaseZero;
        packages.brevantVersions += QString::number(packages.brevantVersion) + QLatin1Char(' ');
    }

    // A version known only as the one that ran last ticks the box without a year beside it.
    detection.setBox(Launcher::Brevant, packages.brevantVersion != 0,
                     QStringLiteral("Brevant ") + packages.brevantVersions);
    detection.logFound(QStringLiteral("Brevant=") + packages.brevantVersions);
}
