#pragma once

#include "cad/registry_listing.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

namespace Nvx::Cad {

/// A release of Creo Parametric in the registry.
struct CreoInstall
{
    int release = 0;    ///< 1 to 3
    QString installDir; ///< empty if the registry has only the ship code
    QString shipCode;

    bool operator==(const CreoInstall &) const = default;
};

/// A version of NX in the registry.
struct NxInstall
{
    int index = -1;      ///< in nxVersions
    QString installDir;  ///< may be empty
    QString registryKey; ///< the key that names the folder

    bool operator==(const NxInstall &) const = default;
};

/// The editions of Tamsel. Each has a check box of its own.
enum class TamselEdition
{
    Plain,
    Architecture,
    Mep
};

/// One year of an edition of Tamsel.
struct TamselInstall
{
    TamselEdition edition = TamselEdition::Plain;
    int year = 0;
    QString installDir; ///< never empty

    bool operator==(const TamselInstall &) const = default;
};

/// The CAD systems found on the machine.
struct CadPackages
{
    int brevantVersion = 0;  ///< newest year, 0 if not found
    QString brevantVersions; ///< each year followed by a blank

    int creoVersion = 0;             ///< newest major release, 0 if not found
    QList<CreoInstall> creoInstalls; ///< in ascending order

    int solidWorksVersion = 0;    ///< newest year, 0 if not found
    QString solidWorksInstallDir; ///< of the newest year with a folder

    int nxIndex = -1;            ///< of the last version found, -1 if none was
    QList<NxInstall> nxInstalls; ///< in ascending order

    QList<TamselInstall> tamselInstalls; ///< by edition, each in ascending order

    bool spaceClaimFound = false;

    /// The install of a release; a default one if it was not found.
    CreoInstall creoInstall(int release) const;

    /// Each year found of an edition, after a blank; empty if none was.
    QString tamselVersions(TamselEdition edition) const;
};

/// A search for CAD systems: the registry that it reads, and what it has found so far. A detector reads the
/// registry, adds to the results and the log, and returns the label of its check box, std::nullopt if the
/// CAD system was not found.
struct Detection
{
    Q_DECLARE_TR_FUNCTIONS(Detection)

public:
    const RegistryListing &registry;
    const QString &foundWord; ///< begins the lines of logFound
    CadPackages packages;
    QStringList lines; ///< of the log

    void log(const QString &line) { lines.append(line); }

    // Lines that several detectors log. versionName is the maker's name with the year or release.
    void logRegistryKey(const QString &versionName, const QString &key);
    void logInstallDir(const QString &versionName, const QString &dir);
    void logUsing(const QString &versionName, const QString &dir);
    void logFound(const QString &text) { log(foundWord + text); }

    /// The values below a key, sorted by name.
    QList<ListedValue> sortedValuesBelow(const QString &key) const;
};

/// One level of a listed name in upper case, 0 for the first; empty levels do not count. Empty if the name
/// has fewer levels.
QString upperLevelOf(const QString &listedName, int level);

} // namespace Nvx::Cad
