#pragma once

#include "clt_message.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <map>
#include <memory>
#include <memory_resource>

namespace Clt {

/// The product's messages, at most one for each key, in key order. A table that was moved from can only be
/// assigned to.
class MessageTable
{
public:
    using Messages = std::pmr::map<MessageKey, Message>;

    MessageTable() = default;
    MessageTable(const MessageTable &other);
    MessageTable(MessageTable &&) noexcept = default;
    MessageTable &operator=(const MessageTable &other);
    MessageTable &operator=(MessageTable &&) noexcept = default;
    ~MessageTable() = default;

    /// The messages by key, in key order.
    const Messages &messages() const { return m_storage->messages; }
    Messages::const_iterator begin() const { return messages().begin(); }
    Messages::const_iterator end() const { return messages().end(); }
    std::size_t size() const { return messages().size(); }
    bool isEmpty() const { return messages().empty(); }

    /// All keys, in no order.
    QSet<MessageKey> keys() const;

    /// True when a message is stored under exactly that key.
    bool contains(const MessageKey &key) const { return messages().find(key) != end(); }

    /// The message stored under the key or, when there is none, under the key with its context shortened; a
    /// message with its initial values when there is none there either.
    Message message(const MessageKey &key) const;

    /// Stores the message under its key, in place of one that is there.
    void insert(const Message &message);
    void insert(Message &&message);

    /// Sets the source file and line of the message under exactly that key. False when there is none.
    bool setPlace(const MessageKey &key, const QString &file, qint32 line);

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
    // The messages lie close together, for else the walk over a large table waits for memory at each of them.
    struct Storage
    {
        std::pmr::unsynchronized_pool_resource memory;
        Messages messages{&memory};
    };

    std::unique_ptr<Storage> m_storage = std::make_unique<Storage>();
};

} // namespace Clt
