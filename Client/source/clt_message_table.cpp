#include "clt_message_table.h"

#include "clt_message_table_xml.h"
#include "nvx_util/regular_file.h"

#include <QBuffer>
#include <QTextStream>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

// The key with the texts that it has in common with its neighbour shared in memory.
MessageKey sharingTexts(MessageKey key, const MessageKey &neighbour)
{
    if (key.process == neighbour.process)
        key.process = neighbour.process;
    if (key.context == neighbour.context)
        key.context = neighbour.context;
    return key;
}

} // namespace

MessageTable::MessageTable(const MessageTable &other)
    : m_file(other.m_file)
    , m_errorString(other.m_errorString)
{
    m_storage->messages = other.m_storage->messages;
}

MessageTable &MessageTable::operator=(const MessageTable &other)
{
    return *this = MessageTable(other);
}

QSet<MessageKey> MessageTable::keys() const
{
    QSet<MessageKey> keys;
    keys.reserve(static_cast<qsizetype>(size()));
    for (const auto &[key, message] : messages())
        keys.insert(key);
    return keys;
}

Message MessageTable::message(const MessageKey &key) const
{
    auto found = messages().find(key);
    if (found == end())
        found = messages().find(key.withShortenedContext());
    return found == end() ? Message() : found->second;
}

std::pair<MessageTable::Messages::const_iterator, bool> MessageTable::insert(const Message &message)
{
    return insert(Message(message));
}

// The hint is the end, because tables are mostly filled in their own order.
std::pair<MessageTable::Messages::const_iterator, bool> MessageTable::insert(Message &&message)
{
    Messages &messages = m_storage->messages;
    if (!messages.empty())
        message.setKey(sharingTexts(message.key(), messages.rbegin()->first));
    const MessageKey key = message.key();
    const std::size_t sizeBefore = messages.size();
    const auto inserted = messages.insert_or_assign(messages.end(), key, std::move(message));
    return {inserted, messages.size() > sizeBefore};
}

void MessageTable::merge(MessageTable &&other)
{
    if (isEmpty()) {
        m_storage = std::move(other.m_storage);
        return;
    }
    for (auto &[key, message] : other.m_storage->messages)
        insert(std::move(message));
}

bool MessageTable::remove(const MessageKey &key)
{
    return m_storage->messages.erase(key) != 0;
}

bool MessageTable::load(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        m_errorString = file.errorString();
        return false;
    }
    const TableReading reading = readMessageTable(file, *this);
    m_errorString.clear();
    if (!reading)
        m_errorString = u"%1 at line %2"_s.arg(reading.error, QString::number(reading.errorLine));
    return bool(reading);
}

bool MessageTable::save(const QString &fileName)
{
    QBuffer contents;
    return contents.open(QIODevice::WriteOnly | QIODevice::Text) && writeMessageTable(contents, *this) &&
           m_file.replace(fileName, contents.data());
}

void writeReading(QTextStream &errors, const QString &fileName, const MessageTable &table)
{
    if (!table.errorString().isEmpty()) {
        errors << fileName << ": " << table.errorString() << '\n';
        return;
    }
    for (const QString &line : table.leftovers().logLines(fileName))
        errors << line << '\n';
}

} // namespace Clt
