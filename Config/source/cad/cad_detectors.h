#pragma once

// The search for each CAD system, and what the searches share.

#include "cad/cad_search.h"
#include "cad/registry_listing.h"

/// What a detector works with: it reads the registry and adds to the search.
struct Detection
{
    const RegistryListing &registry;
    const QString &foundWord;
    CadSearch &search;

    CadPackages &packages() const { return search.packages; }

    /// Adds a line to the log.
    void log(const QString &line) const { search.lines.append(line); }

    // The lines that the detectors have in common; the version's name is the maker's and the year or release.
    void logRegistryKey(const QString &versionName, const QString &key) const;
    void logInstallDir(const QString &versionName, const QString &dir) const;
    void logUsing(const QString &versionName, const QString &dir) const;
    void logFound(const QString &text) const { log(foundWord + text); }

    void setBox(Launcher launcher, bool found, const QString &label) const
    {
        search.boxes.append({launcher, found, found ? label : QString()});
    }

    /// The values below a key, by their names in ascending order.
    QList<ListedValue> sortedValuesBelow(const QString &key) const;
};

/// The upper-cased part of a listed name at a level, 0 for the first; empty parts do not count. Empty when
/// the name has fewer levels.
QString upperLevelOf(const QString &listedName, int level);

void detectBrevant(const Detection &detection);
void detectCreo(const Detection &detection);
void detectSolidWorks(const Detection &detection);
void detectNx(const Detection &detection);
void detectTamsel(const Detection &detection);
void detectSpaceClaim(const Detection &detection);
