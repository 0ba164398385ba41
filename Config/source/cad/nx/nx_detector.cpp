#include "cad/cad_detectors.h"

namespace {

// The names of the versions in the registry and for people.
const std::array<QString, 8> nxVersions{
    QStringLiteral("8.5"),   QStringLiteral("8.5.0"), QStringLiteral("9.0"),    QStringLiteral("9.5"),
    QStringLiteral("9.5.0"), QStringLiteral("10.0"),  QStringLiteral("10.5.0"), QStringLiteral("11.0")};

QString nameOf(size_t index)
{
    return QStringLiteral("UGNX ") + nxVersions[index];
}

void probe(const Detection &detection, size_t index)
{
    CadPackages &packages = detection.packages();
    const QString key =
        QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\") + nxVersions[index];
    detection.logRegistryKey(nameOf(index), key);
    const QList<ListedValue> values = detection.sortedValuesBelow(key);
    for (const ListedValue &value : values) {
        if (upperLevelOf(value.name, 0) != QLatin1String("UGII_BASE_DIR"))
            continue;
        packages.nxKeys[index] = key;
        packages.nxInstallDirs[index] = value.text;
        packages.nxIndex = static_cast<int>(index);
    }
    detection.logInstallDir(nameOf(index), packages.nxInstallDirs[index]);
}

} // namespace

void detectNx(const Detection &detection)
{
    const CadPackages &packages = detection.packages();
    for (size_t index = 0; index < nxVersions.size(); ++index)
        probe(detection, index);
    detection.logFound(QStringLiteral("UGNX=%1").arg(packages.nxIndex));

    QString label = QStringLiteral("UGS NX");
    for (size_t index = 0; index < nxVersions.size(); ++index) {
        if (packages.nxInstallDirs[index].isEmpty())
            continue;
        label += QLatin1Char(' ') + nxVersions[index];
        detection.logUsing(nameOf(index), packages.nxInstallDirs[index]);
    }
    detection.setBox(Launcher::Nx, packages.nxIndex >= 0, label);
}
