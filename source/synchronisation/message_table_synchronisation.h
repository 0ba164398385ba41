#pragma once

#include "clt_message_key.h"
#include "nvx_util/result.h"
#include "scanner/source_scanner.h"

#include <QString>

#include <vector>

class QTextStream;

namespace Clt {
class MessageTable;
}

namespace Synchronisation {

class ProgressLog;

/// How many keys a synchronisation found.
struct KeyCounts
{
    qsizetype found = 0;
    qsizetype added = 0;                       ///< found, and not in the table before
    qsizetype existing = 0;                    ///< in the table before, found or not
    qsizetype obsolete = 0;                    ///< in the table before, and not found
    qsizetype becameObsolete = 0;              ///< of these, the ones that were not obsolete before
    std::vector<Clt::MessageKey> addedKeys;    ///< in key order
    std::vector<Clt::MessageKey> obsoleteKeys; ///< in key order

    /// "Found F keys (A new, E existing, and O obsolete)", or "Found 0 keys".
    QString text() const;
};

/// Inserts a message of state New for every found key that the table does not have, and sets the state of
/// every message whose key is not found to Obsolete. Other messages keep their texts and their state; an
/// obsolete message whose key is found again stays obsolete. Every message whose key is found gets its file
/// and line, which are not saved.
KeyCounts synchronizeKeys(Clt::MessageTable &table, const Scan::FoundKeys &found);

/// How the synchronisation of a message-table file ended.
struct TableSynchronisation
{
    Nvx::Util::Outcome outcome;
    int skippedFiles = 0; ///< source files that could not be scanned
};

/// Synchronises a message-table file with the sources of a Visual Studio project, and logs each step. Creates
/// the table if it does not exist. Fails, and leaves the file unchanged, if the table cannot be loaded or
/// saved or the project cannot be read; the error is also the last line of the log. A source file that cannot
/// be scanned is logged and skipped. Writes to errors: what reading the table left over, or why it could not
/// be read; why a file cannot be opened, and what else of the project could not be resolved; each new key
/// with its file and line; each obsolete key; and the copy that was made of the table.
TableSynchronisation synchronizeMessageTable(const QString &messageTableFile, const QString &projectFile,
                                             ProgressLog &log, QTextStream &errors);

} // namespace Synchronisation
