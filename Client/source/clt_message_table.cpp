#include "clt_message_table.h"

#include "clt_message_table_xml.h"
#include "nvx_util/whole_file.h"

#include <QBuffer>
#include <QFile>

#include <utility>

namespace Clt {

QSet<MessageKey> MessageTable::keys() const
{
    QSet<MessageKey> keys;
    keys.reserve(static_cast<qsizetype>(m_messages.size()));
    for (const auto &[key, message] : m_messages)
        keys.insert(key);
    return keys;
}

Message MessageTable::message(const MessageKey &key) const
{
    auto found = m_messages.find(key);
    if (found == m_messages.end())
        found = m_messages.find(key.withShortenedContext());
    return found == m_messages.end() ? Message() : found->second;
}

void MessageTable::insert(const Message &message)
{
    insert(Message(message));
}

// Tables are mostly filled in their own order, in which the end is where the message belongs.
void MessageTable::insert(Message &&message)
{
    const MessageKey key = message.key();
    m_messages.insert_or_assign(m_messages.end(), key, std::move(message));
}

bool MessageTable::remove(const MessageKey &key)
{
    return m_messages.erase(key) != 0;
}

bool MessageTable::load(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) && readMessageTable(file, *this);
}

bool MessageTable::save(const QString &fileName) const
{
    QBuffer contents;
    return contents.open(QIODevice::WriteOnly | QIODevice::Text) && writeMessageTable(contents, *this) &&
           Nvx::Util::replaceWholeFile(fileName, contents.data());
}

} // namespace Clt
