#include "cad/tamsel/tamsel.h"

#include "cad/cad_packages.h"
#include "cad/launcher_step.h"
#include "cad/shared_folders.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "run/diagnostics.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Nvx::Util::joinPath;
using namespace Nvx::Run;
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

QByteArray tamselManifest(const QString &installDir)
{
    const QString assembly = installDir + u"\\Launchers\\Tamsel\\NVX_2017_Tamsel2017.dll"_s;
    const QString text = u"<?xml version=\"1.0\" encoding=\"utf-16\" standalone=\"no\"?>\n"
                         "<TamselAddIns>\n"
                         "<AddIn Type=\"Application\">\n"
                         "<Name>%1</Name>\n"
                         "<Assembly>%2</Assembly>\n"
                         "<AddInId>D678F341-A94D-43BB-AD6F-8E0E9DABA31A</AddInId>\n"
                         "<VendorId>Velmora, Inc.</VendorId>\n"
                         "<FullClassName>Kelvane_2017.NvxApplication</FullClassName>\n"
                         "</AddIn>\n"
                         "</TamselAddIns>\n"_s.arg(Product::fullName, assembly);
    return text.toUtf8().left(text.size());
}

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(TamselLauncher)
};

// The folders of a manifest that belong to the maker; what they are in belongs to the system.
constexpr int ownLevels = 4;

QString manifestOfYear(const QString &root, int year)
{
    return joinPath(root, u"Velmora/Tamsel/Addins/%1/%2"_s.arg(QString::number(year), tamselManifestName));
}

void writeManifest(const StepContext &context, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        context.reporter.log(LogLevel::ofResult(file.error()),
                             Messages::tr("Open failed:") + file.errorString());
        return;
    }
    const QByteArray manifest = tamselManifest(context.state.installDir);
    if (file.write(manifest) != manifest.size())
        qCWarning(diagnostics, "Unable to write %ls", qUtf16Printable(path));
}

// A path of another operating system would become an oddly named folder in the working folder.
bool makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    return QDir::isAbsolutePath(folder) && Util::System::makePath(folder);
}

void copyManifest(const StepContext &context, const QString &manifest, const QString &target)
{
    context.reporter.log(LogLevel::step, Messages::tr("Copying:%1 to: %2").arg(manifest, target));
    const QString folder = QDir::toNativeSeparators(QFileInfo(target).path());
    const auto way = Util::HeldWay::toFolder(folder);
    // Tamsel runs what the manifest names for every user.
    if (isTrustedWay(context.reporter, way, target) && takeOverFolders(context.reporter, folder, ownLevels))
        QFile::copy(manifest, target);
}

void installEdition(const LauncherStep &step, Launcher launcher, TamselEdition edition, const QString &title)
{
    if (!step.isChecked(launcher))
        return;
    step.context.reporter.progress(LogLevel::step, title);
    for (const TamselInstall &install : step.packages.tamselInstalls) {
        if (install.edition == edition)
            installTamselAddin(step, install.year);
    }
}

} // namespace

void installTamselAddin(const LauncherStep &step, int year)
{
    const StepContext &context = step.context;
    const QString first = manifestOfYear(step.folders.formerApplicationData, year);
    const QString second = manifestOfYear(step.folders.applicationData, year);
    const QString manifest = joinPath(context.state.installDir, u"Launchers/Tamsel/"_s + tamselManifestName);

    context.reporter.log(LogLevel::step, Messages::tr("Tamsel Addin"));
    for (const QString &path : {first, second, manifest}) {
        context.reporter.log(LogLevel::step, Messages::tr("Removing:") + path);
        removeProductFile(path);
    }
    if (!step.isInstall())
        return;

    writeManifest(context, manifest);
    // The second try helps if another program creates one of the folders at the same moment. The second
    // target's folder is normally another name of the first one's; where it is missing, its copy fails, and
    // Tamsel reads the first one.
    if (!makeFolderOf(first))
        makeFolderOf(first);
    copyManifest(context, manifest, first);
    copyManifest(context, manifest, second);
}

void installTamselLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::Tamsel, TamselEdition::Plain, u"Tamsel"_s);
}

void installTamselArchitectureLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::TamselArchitecture, TamselEdition::Architecture, u"Tamsel Architecture"_s);
}

void installTamselMepLauncher(const LauncherStep &step)
{
    installEdition(step, Launcher::TamselMep, TamselEdition::Mep, u"Tamsel MEP"_s);
}

} // namespace Nvx::Cad
