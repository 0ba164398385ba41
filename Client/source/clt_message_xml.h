#pragma once

#include "clt_message.h"

#include <optional>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace Clt {

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

/// Reads the message at whose start element the reader is, to its end; nullopt if the document ends or is
/// malformed before that.
std::optional<Message> readMessage(QXmlStreamReader &xml);

/// Reads the key at whose start element the reader is, to its end or that of the document.
MessageKey readMessageKey(QXmlStreamReader &xml);

/// Writes the message's element. A character that XML cannot represent puts the writer into its error state.
void writeMessage(QXmlStreamWriter &xml, const Message &message);

} // namespace Clt
