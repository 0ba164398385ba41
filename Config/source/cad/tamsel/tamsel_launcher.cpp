#include "cad/tamsel/tamsel_launcher.h"

#include "cad/cad_packages.h"
#include "cad/shared_folders.h"
#include "cad/tamsel/tamsel_manifest.h"
#include "nvx_util/system.h"
#include "run/diagnostics.h"
#include "run/launcher_boxes.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Nvx::Util::joinPath;
using Nvx::Util::System;

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(TamselLauncher)
};

struct Edition
{
    TamselEdition edition;
    Launcher launcher;
    QString title;
};

const std::array<Edition, tamselEditionCount> editions{{
    {TamselEdition::Plain, Launcher::Tamsel, QStringLiteral("Tamsel")},
    {TamselEdition::Architecture, Launcher::TamselArchitecture, QStringLiteral("Tamsel Architecture")},
    {TamselEdition::Mep, Launcher::TamselMep, QStringLiteral("Tamsel MEP")},
}};

constexpr size_t firstVersion = 5;
constexpr size_t lastVersion = 8;
constexpr int yearOfVersion0 = 2010;

QString manifestOfYear(const QString &root, int year)
{
    return joinPath(
        root, QStringLiteral("Velmora/Tamsel/Addins/%1/%2").arg(QString::number(year), tamselManifestName));
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

// A path of another operating system would become a folder with an odd name below the working folder.
bool makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    return QDir::isAbsolutePath(folder) && System::makePath(folder);
}

void copyManifest(const StepContext &context, const QString &manifest, const QString &target)
{
    context.reporter.log(LogLevel::step, Messages::tr("Copying:%1 to: %2").arg(manifest, target));
    QFile::copy(manifest, target);
}

} // namespace

void installTamselAddin(const StepContext &context, const SharedFolders &folders, RunMode mode, int year)
{
    const QString first = manifestOfYear(folders.applicationDataOfOld, year);
    const QString second = manifestOfYear(folders.applicationData, year);
    const QString manifest =
        joinPath(context.state.installDir, QStringLiteral("Launchers/Tamsel/") + tamselManifestName);

    context.reporter.log(LogLevel::step, Messages::tr("Tamsel Addin"));
    for (const QString &path : {first, second, manifest}) {
        context.reporter.log(LogLevel::step, Messages::tr("Removing:") + path);
        removeProductFile(path);
    }
    if (mode != RunMode::Install)
        return;

    writeManifest(context, manifest);
    // A second try serves where another program made one of the folders at the same moment. The second
    // target's folder is the first one's by another name; where it is not, the copy fails, and nothing is
    // lost.
    if (!makeFolderOf(first))
        makeFolderOf(first);
    copyManifest(context, manifest, first);
    copyManifest(context, manifest, second);
}

void installTamselLauncher(const StepContext &context, const CadPackages &packages,
                           const LauncherBoxes &boxes, const SharedFolders &folders, RunMode mode)
{
    for (const Edition &edition : editions) {
        if (!boxes.isTicked(edition.launcher))
            continue;
        context.reporter.progress(LogLevel::step, edition.title);
        const auto &installDirs = packages.tamselInstallDirs.at(static_cast<size_t>(edition.edition));
        for (size_t version = firstVersion; version <= lastVersion; ++version) {
            if (!installDirs.at(version).isEmpty())
                installTamselAddin(context, folders, mode, static_cast<int>(version) + yearOfVersion0);
        }
    }
}
