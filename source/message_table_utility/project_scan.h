#pragma once

#include "scanner/found_keys.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace Scan {
struct VisualStudioProject;
}

namespace Error {

/// What the scan of a project's sources found.
struct ProjectScan
{
    Scan::FoundKeys keys;
    QStringList errors; ///< "FILE: ERROR" for every file that could not be scanned
};

/// Is told how many of the project's files are scanned, and how many keys were found in them. False stops the
/// scan.
using ScanReceiver = std::function<bool(qsizetype files, qsizetype keys)>;

/// Scans the sources of the project that was read from that file. Returns what was found until it was
/// stopped.
ProjectScan scanProject(const QString &projectFile, const Scan::VisualStudioProject &project,
                        const ScanReceiver &receive);

/// The lines for a box: the first of the errors, and how many more there are.
QString scanErrorText(const QStringList &errors);

} // namespace Error
