#pragma once

class QIODevice;
class QXmlStreamReader;

namespace Clt {

class MessageTable;

// A message table as an XML document: a "messageTable" element in the product's name space with one "message"
// element (clt_message_xml.h) for each message, in key order. Read, the root may stand at any depth and more
// than once; an element in it that is no message ends it with its own end tag.

/// Merges the messages of the document on the open device into the table. False when it is no well-formed
/// XML; the messages that were complete before the error are taken.
bool readMessageTable(QIODevice &device, MessageTable &table);

/// The same from a reader at the beginning of its document; it tells the error and the line.
bool readMessageTable(QXmlStreamReader &xml, MessageTable &table);

/// Merges the messages of the root on whose start element the reader stands into the table, to the root's end
/// or that of the document.
void readMessageTableBody(QXmlStreamReader &xml, MessageTable &table);

/// Writes the table's document to the open device. False when the device fails or a text has a character that
/// XML cannot carry; what was written is then of no use.
bool writeMessageTable(QIODevice &device, const MessageTable &table);

} // namespace Clt
