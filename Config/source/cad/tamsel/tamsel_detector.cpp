#include "cad/detection.h"
#include "cad/tamsel/tamsel.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

namespace {

constexpr int firstYear = 2015;
constexpr int lastYear = 2018;

// How the registry, the log and the check box spell the name of an edition.
struct EditionNames
{
    TamselEdition edition;
    QLatin1String product; // in the registry
    QLatin1String tag;     // in the log
    QLatin1String listTag;
    QLatin1String label; // that of the plain edition ends with a blank
};

constexpr EditionNames plain{TamselEdition::Plain, "Velmora Tamsel"_L1, "Tamsel"_L1, "Tamsel ="_L1,
                             "Tamsel "_L1};
constexpr EditionNames architecture{TamselEdition::Architecture, "Velmora Tamsel Architecture"_L1,
                                    "Tamsel ARC"_L1, "Tamsel ARC="_L1, "Tamsel Architecture"_L1};
constexpr EditionNames mep{TamselEdition::Mep, "Velmora Tamsel MEP"_L1, "Tamsel MEP"_L1, "Tamsel MEP="_L1,
                           "Tamsel MEP"_L1};

QString productCodeOf(const QList<ListedValue> &components)
{
    for (const ListedValue &value : components) {
        if (upperLevelOf(value.name, 0) == "PRODUCTCODE"_L1)
            return value.text;
    }
    return QString();
}

// Returns the folder of one year; empty if that year is not installed.
QString probe(Detection &detection, const EditionNames &names, int year)
{
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Tamsel\\%1 %2\\Components"_s.arg(
        names.product, QString::number(year));
    detection.logRegistryKey(names.tag + QString::number(year), key);
    const QString productCode = productCodeOf(detection.registry.valuesBelow(key));
    detection.log(Detection::tr("%1 Product Code =%2").arg(names.tag, productCode));
    if (productCode.isEmpty())
        return QString();

    const QString uninstallKey =
        u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s + productCode;
    detection.log(u"%1 Key2=%2"_s.arg(names.tag, uninstallKey));
    QString dir = detection.registry.valueOf(uninstallKey, u"InstallLocation"_s);
    detection.log(u"%1 InstallDir=%2"_s.arg(names.tag, dir));
    return dir;
}

std::optional<QString> detectEdition(Detection &detection, const EditionNames &names)
{
    QList<TamselInstall> installs;
    for (int year = firstYear; year <= lastYear; ++year) {
        const QString dir = probe(detection, names, year);
        if (!dir.isEmpty())
            installs.append({names.edition, year, dir});
    }
    detection.packages.tamselInstalls += installs;

    const QString versions = detection.packages.tamselVersions(names.edition);
    detection.logFound(names.listTag + versions);
    for (const TamselInstall &install : installs)
        detection.logUsing(names.tag + u' ' + QString::number(install.year), install.installDir);
    if (installs.isEmpty())
        return std::nullopt;
    return names.label + versions;
}

} // namespace

std::optional<QString> detectTamsel(Detection &detection)
{
    return detectEdition(detection, plain);
}

std::optional<QString> detectTamselArchitecture(Detection &detection)
{
    return detectEdition(detection, architecture);
}

std::optional<QString> detectTamselMep(Detection &detection)
{
    return detectEdition(detection, mep);
}

} // namespace Nvx::Cad
