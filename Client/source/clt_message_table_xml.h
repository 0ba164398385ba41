#pragma once

#include "nvx_util/result.h"

class QIODevice;
class QXmlStreamReader;

namespace Clt {

class MessageTable;

// A message table as an XML document: a "messageTable" element in the product's name space with one "message"
// element (clt_message_xml.h) for each message, in key order. When reading, the root may be at any depth and
// occur more than once; the end tag of an element in it that is not a message also ends the root.

/// Merges the messages of the document on the open device into the table. Fails if the document is not
/// well-formed XML; the messages that were complete before the error are merged.
Nvx::Util::Outcome readMessageTable(QIODevice &device, MessageTable &table);

/// The same from a reader at the beginning of its document, which knows the line of an error.
Nvx::Util::Outcome readMessageTable(QXmlStreamReader &xml, MessageTable &table);

/// Merges the messages of a root into the table. The reader is at the root's start element, and reads to the
/// end of the root or of the document.
void readMessageTableBody(QXmlStreamReader &xml, MessageTable &table);

/// Writes the table's document to the open device. Returns false if the device fails or a text has a
/// character that XML cannot represent; the document is then incomplete.
[[nodiscard]] bool writeMessageTable(QIODevice &device, const MessageTable &table);

} // namespace Clt
