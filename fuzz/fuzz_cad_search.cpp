// Whatever the registry holds, the search comes to an end, sets every box once, and what it says of a CAD
// system in its box, in its results and in the log is the same.

#include "cad/cad_search.h"
#include "support/table_registry.h"

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

const QStringList searchedKeys{
    QStringLiteral("Software\\Velmora\\Brevant\\Current Version"),
    QStringLiteral("SOFTWARE\\Velmora\\Brevant\\RegistryVersion20.0"),
    QStringLiteral("Software\\PTC\\Creo Parametric\\1.0"),
    QStringLiteral("Software\\PTC\\Creo Parametric\\2.0\\2013"),
    QStringLiteral("SOFTWARE\\Wow6432Node\\PTC\\Creo Parametric\\2.0\\2013"),
    QStringLiteral("SOFTWARE\\Wow6432Node\\PTC\\PTC Creo Parametric\\3.0\\2014"),
    QStringLiteral("Software\\SolidWorks\\SolidWorks 2016\\Setup"),
    QStringLiteral("Software\\Unigraphics Solutions\\NX\\9.5"),
    QStringLiteral("Software\\Unigraphics Solutions\\NX\\11.0"),
    QStringLiteral("SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel 2015\\Components"),
    QStringLiteral("SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel MEP 2018\\Components"),
    QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\a"),
    QStringLiteral("Software\\Classes\\SpaceClaim.Location")};

const QStringList searchedNames{QStringLiteral("LASTVERSIONRUN"),    QStringLiteral("ProductName"),
                                QStringLiteral("INSTALLDIR"),        QStringLiteral("SHIPCODE"),
                                QStringLiteral("SolidWorks Folder"), QStringLiteral("UGII_BASE_DIR"),
                                QStringLiteral("ProductCode"),       QStringLiteral("InstallLocation")};

// Each line of the input is a value: a byte for the key, a byte for the name, then either the text alone, or
// the rest of the key, the name and the text with zeros between them.
void fill(TableRegistry &registry, const QByteArray &input)
{
    const QList<QByteArray> lines = input.split('\n');
    for (const QByteArray &line : lines) {
        if (line.size() < 2)
            continue;
        const auto at = [&line](int place, qsizetype count) {
            return static_cast<unsigned char>(line[place]) % count;
        };
        QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\") + searchedKeys.at(at(0, searchedKeys.size()));
        QString name = searchedNames.at(at(1, searchedNames.size()));
        const QList<QByteArray> texts = line.mid(2).split('\0');
        if (texts.size() > 1)
            key += QLatin1Char('\\') + QString::fromUtf8(texts.first());
        if (texts.size() > 2)
            name = QString::fromUtf8(texts.at(1));
        registry.put(key, name, QString::fromUtf8(texts.last()));
    }
}

bool isFound(const CadPackages &packages, Launcher launcher)
{
    switch (launcher) {
    case Launcher::Creo:
        return packages.creoVersion != 0;
    case Launcher::SolidWorks:
        return packages.solidWorksVersion != 0;
    case Launcher::Brevant:
        return packages.brevantVersion != 0;
    case Launcher::Nx:
        return packages.nxIndex >= 0;
    case Launcher::Tamsel:
        return !packages.tamselVersions[0].isEmpty();
    case Launcher::TamselArchitecture:
        return !packages.tamselVersions[1].isEmpty();
    case Launcher::TamselMep:
        return !packages.tamselVersions[2].isEmpty();
    case Launcher::SpaceClaim:
        break;
    }
    return packages.spaceClaimFound;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    TableRegistry registry;
    fill(registry, QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    const CadSearch search = searchCadPackages(registry, QStringLiteral("Found "));

    std::array<int, launcherCount> times{};
    for (const LauncherBox &box : search.boxes) {
        ++times[static_cast<size_t>(box.launcher)];
        require(box.found == isFound(search.packages, box.launcher));
        require(box.found == !box.label.isEmpty());
    }
    for (const int count : times)
        require(count == 1);

    const CadPackages &packages = search.packages;
    require(packages.brevantVersion == 0 || packages.brevantVersion > 2014);
    require(packages.creoVersion >= 0 && packages.creoVersion <= 3);
    require(packages.nxIndex < 8);
    for (size_t edition = 0; edition < tamselEditionCount; ++edition) {
        qsizetype dirs = 0;
        for (const QString &dir : packages.tamselInstallDirs[edition])
            dirs += dir.isEmpty() ? 0 : 1;
        require(packages.tamselVersions[edition].size() == 5 * dirs);
    }
    require(search.lines.contains(QStringLiteral("Found Solidworks=%1").arg(packages.solidWorksVersion)));
    require(search.lines.contains(QStringLiteral("Found UGNX=%1").arg(packages.nxIndex)));
    return 0;
}
