#pragma once

#include "scanner/source_scanner.h"

#include <QStringList>

#include <functional>

namespace Scan {

enum class Continuation
{
    Continue,
    Stop
};

/// Receives the scanner of the file at the index, after its scan.
using FileReceiver = std::function<Continuation(qsizetype index, const SourceScanner &scanner)>;

/// Scans the files with this number of threads (0: one for each processor), and passes each scanner to the
/// receiver, on the calling thread and in the order of the list. Returns after the last file, or when the
/// receiver stops the scan.
void scanFiles(const QString &process, const QStringList &fileNames, const FileReceiver &receive,
               int threadCount = 0);

} // namespace Scan
