#pragma once

#include "clt_leftovers.h"
#include "clt_message.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <map>
#include <memory>
#include <memory_resource>
#include <utility>

class QTextStream;

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

    /// Stores the message under its key, and replaces an existing one. Returns where it is, and whether it is
    /// new.
    std::pair<Messages::const_iterator, bool> insert(const Message &message);
    std::pair<Messages::const_iterator, bool> insert(Message &&message);

    /// The message at that place, to change everything but its key.
    Message &editable(Messages::const_iterator place)
    {
        return m_storage->messages.erase(place, place)->second; // removes nothing
    }

    /// Stores all messages of another table.
    void merge(MessageTable &&other);

    /// Removes the message under exactly that key. Returns false if there is none.
    bool remove(const MessageKey &key);

    /// Merges the messages of a message-table file (clt_message_table_xml.h) into the table. Returns false if
    /// the file cannot be opened, or is not well-formed XML; the messages before the error are merged.
    bool load(const QString &fileName);

    /// The error of the last load: the system's text if the file could not be opened, otherwise "ERROR at
    /// line LINE". Empty after a successful load.
    const QString &errorString() const { return m_errorString; }

    /// What was left over from the file that the table was read from; nothing after it was replaced.
    const Leftovers &leftovers() const { return m_file.leftovers(); }

    /// The file that the messages were read from, and what was left over from it, for save().
    void setFile(const QString &fileName, const Leftovers &leftovers) { m_file.set(fileName, leftovers); }

    /// Replaces the file with one of this table, whole or not at all. A file that already has these bytes is
    /// left alone. A file that was read with something left over is first copied (Clt::backUpFile). Returns
    /// false, and leaves the old file unchanged, if the file or its copy cannot be written or a text has a
    /// character that XML cannot represent.
    bool save(const QString &fileName);

    /// The copy that the last save made; empty if it made none.
    const QString &backupFile() const { return m_file.copy(); }

private:
    // A pool places the messages next to each other: otherwise a walk over a large table waits for memory at
    // each of them.
    struct Storage
    {
        std::pmr::unsynchronized_pool_resource memory;
        Messages messages{&memory};
    };

    std::unique_ptr<Storage> m_storage = std::make_unique<Storage>();
    FileLeftovers m_file;
    QString m_errorString;
};

/// Writes to the errors why the last load of a file failed, or what it left over; nothing if there is
/// neither.
void writeReading(QTextStream &errors, const QString &fileName, const MessageTable &table);

} // namespace Clt
