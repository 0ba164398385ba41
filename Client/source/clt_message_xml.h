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
// Only a critical message is written with an action, only that and a question with a title; "state" is left
// out for a message in sync, "solution" for 0. Read, the children may come in any order, though texts before
// the key are translated without its context. Any other child ends the message with its own end tag.

/// Reads the message on whose start element the reader stands, to its end. Nothing when the document ends or
/// breaks within it.
std::optional<Message> readMessage(QXmlStreamReader &xml);

/// Reads the key on whose start element the reader stands, to its end or that of the document.
MessageKey readMessageKey(QXmlStreamReader &xml);

/// Writes the message's element. After a text with a character that XML cannot carry the writer has an error.
void writeMessage(QXmlStreamWriter &xml, const Message &message);

} // namespace Clt
