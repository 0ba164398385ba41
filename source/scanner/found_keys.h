#pragma once

#include "clt_message_key.h"

#include <QHash>
#include <QString>

namespace Scan {

class SourceScanner;

/// Where a message is raised.
struct SourcePlace
{
    QString file; ///< as passed to the scanner
    int line = 0;
};

/// The keys found in several files, each with the place of its first call.
using FoundKeys = QHash<Clt::MessageKey, SourcePlace>;

/// Adds the keys of a scanner. A key that was found in an earlier file keeps its place.
void addKeys(FoundKeys &found, const SourceScanner &scanner);

} // namespace Scan
