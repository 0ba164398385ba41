#include "cad/creo/creo.h"
#include "cad/creo/creo_names.h"
#include "cad/detection.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

struct CreoProbe
{
    Detection &detection;
    QString &label;
    CreoInstall install;

    // Reads the key of a release, whose sub-keys are date codes. Returns false if it is empty.
    bool read(const QString &key)
    {
        detection.logRegistryKey(u"PTC Creo Parametric %1.0"_s.arg(install.release), key);
        const QList<ListedValue> values = detection.sortedValuesBelow(key);
        for (const ListedValue &value : values)
            take(value);
        return !values.isEmpty();
    }

    void take(const ListedValue &value)
    {
        const QString name = upperLevelOf(value.name, 1);
        if (name == "INSTALLDIR"_L1) {
            install.installDir = value.text;
            detection.packages.creoVersion = install.release;
            label += u" %1.0"_s.arg(install.release);
            detection.logUsing(u"PTC Creo Parametric %1"_s.arg(install.release), value.text);
        } else if (name == "SHIPCODE"_L1) {
            install.shipCode = value.text;
        }
    }
};

// The key of a 32-bit release; empty for release 1, which has none. Release 3 spells the product's name
// differently.
QString key32(int release)
{
    switch (release) {
    case 2:
        return u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\Creo Parametric\\2.0"_s;
    case 3:
        return u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\PTC Creo Parametric\\3.0"_s;
    default:
        return QString();
    }
}

} // namespace

std::optional<QString> detectCreo(Detection &detection)
{
    CadPackages &packages = detection.packages;
    QString label = u"Creo Parametric"_s;
    for (int release = firstCreoRelease; release <= lastCreoRelease; ++release) {
        CreoProbe probe{detection, label, {release, QString(), QString()}};
        const bool holdsAnything =
            probe.read(u"HKEY_LOCAL_MACHINE\\Software\\PTC\\Creo Parametric\\%1.0"_s.arg(release));
        if (!holdsAnything && !key32(release).isEmpty())
            probe.read(key32(release));
        if (!probe.install.installDir.isEmpty() || !probe.install.shipCode.isEmpty())
            packages.creoInstalls.append(probe.install);
    }
    if (packages.creoVersion == 0)
        return std::nullopt;
    detection.logUsing(u"ProE Creo %1"_s.arg(packages.creoVersion),
                       packages.creoInstall(packages.creoVersion).installDir);
    return label;
}

} // namespace Nvx::Cad
