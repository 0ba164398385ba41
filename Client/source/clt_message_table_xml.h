#pragma once

#include "clt_leftovers.h"

#include <QString>

class QIODevice;

namespace Clt {

class MessageTable;
class XmlSource;

// A message table as an XML document: a "messageTable" element in the product's name space with one "message"
// element (clt_message_xml.h) for each message, in key order. When reading, the root may be at any depth and
// occur more than once; the end tag of an element in it that is not a message also ends the root.

/// How the reading of a table ended.
struct TableReading
{
    bool succeeded = false;
    QString error;        ///< why not, for the user
    qint64 errorLine = 0; ///< where; 0 if the file could not be opened
    Leftovers leftovers;  ///< what was read, but is not in the table

    explicit operator bool() const { return succeeded; }
};

/// Merges the messages of the document on the open device into the table. Fails if the document is not
/// well-formed XML, or has the marks of a merge that git could not finish; the messages that were complete
/// before the error are merged. If the device is a file, the leftovers are also passed to the table.
TableReading readMessageTable(QIODevice &device, MessageTable &table);

/// The same, slower. readMessageTable() does this for a document with anything unusual in it.
TableReading readMessageTableWithQt(QIODevice &device, MessageTable &table);

/// Merges the messages of a root into the table. The source is at the root's start element, and reads to the
/// end of the root or of the document.
void readMessageTableBody(XmlSource &xml, MessageTable &table, Leftovers &leftovers);

/// Writes the table's document to the open device. Returns false if the device fails or a text has a
/// character that XML cannot represent; what was written is then useless.
[[nodiscard]] bool writeMessageTable(QIODevice &device, const MessageTable &table);

} // namespace Clt
