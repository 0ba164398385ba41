#include "cad/detection.h"
#include "cad/nx/nx.h"
#include "cad/nx/nx_versions.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

QString nameOf(int index)
{
    return u"UGNX "_s + nxVersions[static_cast<size_t>(index)];
}

void probe(Detection &detection, int index)
{
    const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\"_s +
                        nxVersions[static_cast<size_t>(index)];
    detection.logRegistryKey(nameOf(index), key);
    std::optional<NxInstall> install;
    const QList<ListedValue> values = detection.sortedValuesBelow(key);
    for (const ListedValue &value : values) {
        if (upperLevelOf(value.name, 0) == "UGII_BASE_DIR"_L1)
            install = {.index = index, .installDir = value.text, .registryKey = key};
    }
    detection.logInstallDir(nameOf(index), install ? install->installDir : QString());
    if (!install)
        return;
    detection.packages.nxIndex = index;
    detection.packages.nxInstalls.append(*install);
}

} // namespace

std::optional<QString> detectNx(Detection &detection)
{
    for (int index = 0; index < static_cast<int>(nxVersions.size()); ++index)
        probe(detection, index);
    const CadPackages &packages = detection.packages;
    detection.logFound(u"UGNX=%1"_s.arg(packages.nxIndex));
    if (packages.nxIndex < 0)
        return std::nullopt;

    QString label = u"UGS NX"_s;
    for (const NxInstall &install : packages.nxInstalls) {
        if (install.installDir.isEmpty())
            continue;
        label += u' ' + nxVersions[static_cast<size_t>(install.index)];
        detection.logUsing(nameOf(install.index), install.installDir);
    }
    return label;
}

} // namespace Nvx::Cad
