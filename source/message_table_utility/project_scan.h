#pragma once

#include "scanner/source_scanner.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace Scan {
struct VisualStudioProject;
}

namespace MessageWindow {

/// The result of scanning a project's sources.
struct ProjectScan
{
    Scan::FoundKeys keys;
    QStringList errors; ///< "FILE: ERROR" or "FILE: ERROR (REASON)" for every file that could not be scanned
};

/// Called after each file with the number of scanned files and of keys found so far. Returns false to stop
/// the scan.
using ScanReceiver = std::function<bool(qsizetype files, qsizetype keys)>;

/// Scans the sources of the project. Returns what was found until the scan ended
/// or was stopped.
ProjectScan scanProject(const Scan::VisualStudioProject &project, const ScanReceiver &receive);

/// The text of a message box: the first of the errors and of the project's notes, and the number of the
/// others.
QString scanErrorText(const QStringList &errors, const QStringList &notes);

} // namespace MessageWindow
