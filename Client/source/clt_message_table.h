#pragma once

#include "clt_message.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <map>

namespace Clt {

/// The product's messages, at most one for each key, in key order.
class MessageTable
{
public:
    using Messages = std::map<MessageKey, Message>;

    /// The messages by key, in key order.
    const Messages &messages() const { return m_messages; }
    Messages::const_iterator begin() const { return m_messages.begin(); }
    Messages::const_iterator end() const { return m_messages.end(); }
    std::size_t size() const { return m_messages.size(); }
    bool isEmpty() const { return m_messages.empty(); }

    /// All keys, in no order.
    QSet<MessageKey> keys() const;

    /// True when a message is stored under exactly that key.
    bool contains(const MessageKey &key) const { return m_messages.find(key) != m_messages.end(); }

    /// The message stored under the key or, when there is none, under the key with its context shortened; a
    /// message with its initial values when there is none there either.
    Message message(const MessageKey &key) const;

    /// Stores the message under its key, in place of one that is there.
    void insert(const Message &message);
    void insert(Message &&message);

    /// True when there was a message under exactly that key.
    bool remove(const MessageKey &key);

    /// Merges the messages of a message-table file (clt_message_table_xml.h) into the table. False when the
    /// file cannot be opened, which changes nothing, or is no well-formed XML, of which the messages before
    /// the error are taken.
    bool load(const QString &fileName);

    /// Replaces the file by one of this table, whole or not at all; a file that has these bytes already is
    /// not touched. False when it cannot be written or a text has a character that XML cannot carry; the old
    /// file is then as it was.
    bool save(const QString &fileName) const;

private:
    Messages m_messages;
};

} // namespace Clt
