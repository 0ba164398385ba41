#include "cad/cad_detectors.h"

namespace {

constexpr int yearOfPlaceZero = 2010;

// How the texts of an edition are spelled; the label of the plain one has a blank more than the others.
struct EditionTexts
{
    TamselEdition edition;
    Launcher launcher;
    QString product; // in the registry
    QString tag;     // in the log, a year directly behind it
    QString listTag;
    QString label;
};

QList<EditionTexts> editions()
{
    return {{TamselEdition::Plain, Launcher::Tamsel, QStringLiteral("Velmora Tamsel"),
             QStringLiteral("Tamsel"), QStringLiteral("Tamsel ="), QStringLiteral("Tamsel ")},
            {TamselEdition::Architecture, Launcher::TamselArchitecture,
             QStringLiteral("Velmora Tamsel Architecture"), QStringLiteral("Tamsel ARC"),
             QStringLiteral("Tamsel ARC="), QStringLiteral("Tamsel Architecture")},
            {TamselEdition::Mep, Launcher::TamselMep, QStringLiteral("Velmora Tamsel MEP"),
             QStringLiteral("Tamsel MEP"), QStringLiteral("Tamsel MEP="), QStringLiteral("Tamsel MEP")}};
}

QString productCodeOf(const QList<ListedValue> &components)
{
    for (const ListedValue &value : components) {
        if (upperLevelOf(value.name, 0) == QLatin1String("PRODUCTCODE"))
            return value.text;
    }
    return QString();
}

// The folder of one year; empty when that year is not installed.
QString probe(const Detection &detection, const EditionTexts &texts, int year)
{
    const QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Tamsel\\%1 %2\\Components")
                            .arg(texts.product, QString::number(year));
    detection.logRegistryKey(texts.tag + QString::number(year), key);
    const QString productCode = productCodeOf(detection.registry.valuesBelow(key));
    detection.log(CadSearch::tr("%1 Product Code =%2").arg(texts.tag, productCode));
    if (productCode.isEmpty())
        return QString();

    const QString uninstallKey =
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\") +
        productCode;
    detection.log(QStringLiteral("%1 Key2=%2").arg(texts.tag, uninstallKey));
    QString dir = detection.registry.valueOf(uninstallKey, QStringLiteral("InstallLocation"));
    detection.log(QStringLiteral("%1 InstallDir=%2").arg(texts.tag, dir));
    return dir;
}

void detectEdition(const Detection &detection, const EditionTexts &texts)
{
    const auto place = static_cast<size_t>(texts.edition);
    auto &dirs = detection.packages().tamselInstallDirs[place];
    QString &versions = detection.packages().tamselVersions[place];
    for (size_t v = 5; v < dirs.size(); ++v) {
        const int year = static_cast<int>(v) + yearOfPlaceZero;
        dirs[v] = probe(detection, texts, year);
        if (!dirs[v].isEmpty())
            versions += QLatin1Char(' ') + QString::number(year);
    }

    detection.setBox(texts.launcher, !versions.isEmpty(), texts.label + versions);
    detection.logFound(texts.listTag + versions);
    for (size_t v = 5; v < dirs.size(); ++v) {
        const int year = static_cast<int>(v) + yearOfPlaceZero;
        if (!dirs[v].isEmpty())
            detection.logUsing(texts.tag + QLatin1Char(' ') + QString::number(year), dirs[v]);
    }
}

} // namespace

void detectTamsel(const Detection &detection)
{
    const QList<EditionTexts> all = editions();
    for (const EditionTexts &texts : all)
        detectEdition(detection, texts);
}
