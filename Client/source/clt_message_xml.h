#pragma once

#include "clt_message.h"

#include <optional>

namespace Clt {

class Leftovers;
class XmlSource;
class XmlWriter;

// The "message" element of a message table:
//
//    <message severity="Critical">
//       <key>
//          <process>client</process>
//          <context>Clt::Session::open</context>
//          <tag>NO_SERVER</tag>
//       </key>
//       <title>No server</title>
//       <text>The server %1 does not answer.</text>
//       <action>Start the server.</action>
//       <state>New</state>
//       <solution>7</solution>
//    </message>
//
// An action is written only for a critical message, a title only for a critical message or a question,
// "state" unless the message is in sync, and "solution" unless it is 0. When reading, the children may be in
// any order, but texts before the key are translated without its context. The end tag of any other child ends
// the message.
//
// What is read but not stored is added to the leftovers: unknown elements, attributes and values, the first
// of two children of one name, comments, and a title or action that would not be written.

/// Reads the message at whose start element the source is, to its end; nullopt if the document ends or is
/// malformed before that.
std::optional<Message> readMessage(XmlSource &xml, Leftovers &leftovers);

/// Reads the key at whose start element the source is, to its end or that of the document.
MessageKey readMessageKey(XmlSource &xml, Leftovers &leftovers);

/// Writes the message's element.
void writeMessage(XmlWriter &xml, const Message &message);

} // namespace Clt
