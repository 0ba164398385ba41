#pragma once

#include "scanner/source_scanner.h"

#include <QString>

namespace Clt {
class MessageTable;
}

namespace Error {

class ProgressLog;

/// What a synchronisation found.
struct KeyCounts
{
    qsizetype found = 0;
    qsizetype added = 0;    ///< found, and not in the table before
    qsizetype existing = 0; ///< in the table before, found or not
    qsizetype obsolete = 0; ///< in the table before, and not found

    /// "Found F keys (A new, E existing, and O obsolete)", or "Found 0 keys".
    QString text() const;
};

/// Inserts a message of state New for every found key that the table does not have, and gives the state
/// Obsolete to every message whose key is not found. Other messages keep their texts and their state, also
/// obsolete ones whose key is found again. Every message whose key is found gets its file and line, which are
/// not saved.
KeyCounts synchronizeKeys(Clt::MessageTable &table, const Scan::FoundKeys &found);

/// How a synchronisation ended.
struct TableUpdate
{
    bool succeeded = false;
    int skippedFiles = 0; ///< source files that could not be scanned
};

/// Brings a message-table file up to date with the sources of a Visual Studio project and tells about it in
/// lines on the log. A message table that does not exist is made. Fails, with its line in the log and the
/// table's file as it was, when the table cannot be loaded or saved or the project cannot be read; a source
/// file that cannot be scanned is told and skipped.
TableUpdate synchronizeMessageTable(const QString &messageTableFile, const QString &projectFile,
                                    ProgressLog &log);

} // namespace Error
