#include "cad/cad_detectors.h"

namespace {

struct CreoProbe
{
    const Detection &detection;
    int release;
    QString &label;

    // Reads one release key, whose sub-keys are date codes. True when it holds anything.
    bool read(const QString &key) const
    {
        detection.logRegistryKey(QStringLiteral("PTC Creo Parametric %1.0").arg(release), key);
        const QList<ListedValue> values = detection.sortedValuesBelow(key);
        for (const ListedValue &value : values)
            take(value);
        return !values.isEmpty();
    }

    void take(const ListedValue &value) const
    {
        CadPackages &packages = detection.packages();
        const auto place = static_cast<size_t>(release);
        const QString name = upperLevelOf(value.name, 1);
        if (name == QLatin1String("INSTALLDIR")) {
            packages.creoInstallDirs[place] = value.text;
            packages.creoVersion = release;
            label += QStringLiteral(" %1.0").arg(release);
            detection.logUsing(QStringLiteral("PTC Creo Parametric %1").arg(release), value.text);
        } else if (name == QLatin1String("SHIPCODE")) {
            packages.creoShipCodes[place] = value.text;
        }
    }
};

// Where the 32-bit releases are registered; there is none for release 1. Release 3 does spell the product's
// name in its own way.
QString key32(int release)
{
    switch (release) {
    case 2:
        return QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\Creo Parametric\\2.0");
    case 3:
        return QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\PTC\\PTC Creo Parametric\\3.0");
    default:
        return QString();
    }
}

} // namespace

void detectCreo(const Detection &detection)
{
    const CadPackages &packages = detection.packages();
    QString label = QStringLiteral("Creo Parametric");
    for (int release = 1; release <= 3; ++release) {
        const CreoProbe probe{detection, release, label};
        const bool holdsAnything = probe.read(
            QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\PTC\\Creo Parametric\\%1.0").arg(release));
        if (!holdsAnything && !key32(release).isEmpty())
            probe.read(key32(release));
    }
    detection.setBox(Launcher::Creo, packages.creoVersion != 0, label);
    if (packages.creoVersion != 0)
        detection.logUsing(QStringLiteral("ProE Creo %1").arg(packages.creoVersion),
                           packages.creoInstallDirs[static_cast<size_t>(packages.creoVersion)]);
}
