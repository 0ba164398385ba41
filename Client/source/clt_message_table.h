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

    /// All keys, in no particular order.
    QSet<MessageKey> keys() const;

    /// True when a message is stored under exactly that key.
    bool contains(const MessageKey &key) const { return messages().find(key) != end(); }

    /// The message stored under the key or, if there is none, under the key with its context shortened; a
    /// message with its initial values if there is none under either.
    Message message(const MessageKey &key) const;

    /// Stores the message under its key, and replaces an existing one.
    void insert(const Message &message);
    void insert(Message &&message);

    /// Sets the source file and line of the message under exactly that key. Returns false if there is none.
    bool setPlace(const MessageKey &key, const QString &file, qint32 line);

    /// Removes the message under exactly that key. Returns false if there is none.
    bool remove(const MessageKey &key);

    /// Merges the messages of a message-table file (clt_message_table_xml.h) into the table. Returns false if
    /// the file cannot be opened, or is not well-formed XML; the messages before the error are merged.
    bool load(const QString &fileName);

    /// Replaces the file with one of this table, whole or not at all. A file that already has these bytes is
    /// left alone. Returns false, and leaves the old file unchanged, if the file cannot be written or a text
    /// has a character that XML cannot represent.
    bool save(const QString &fileName) const;

private:
    // A pool places the messages next to each other: otherwise a walk over a large table waits for memory at
    // each of them.
    struct Storage
    {
        std::pmr::unsynchronized_pool_resource memory;
        Messages messages{&memory};
    };

    std::unique_ptr<Storage> m_storage = std::make_unique<Storage>();
};

} // namespace Clt
