#pragma once

#include "cad/cad_packages.h"
#include "cad/registry_listing.h"

#include <QCoreApplication>
#include <QStringList>

namespace Nvx::Cad {

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
