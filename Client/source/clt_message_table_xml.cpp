#include "clt_message_table_xml.h"

#include "clt_message_table.h"
#include "clt_message_xml.h"
#include "clt_plain_xml_source.h"
#include "clt_xml_source.h"
#include "clt_xml_writer.h"
#include "nvx_util/assertion.h"

#include <QCoreApplication>
#include <QFileDevice>
#include <QHash>
#include <QXmlStreamReader>

#include <optional>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

constexpr const char *unit = "clt_message_table";

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MessageTable)
};

/// Reads a document into a table.
class TableReader
{
public:
    TableReader(XmlSource &xml, MessageTable &table, Leftovers &leftovers)
        : m_xml(xml)
        , m_table(table)
        , m_leftovers(leftovers)
    {
    }

    void readDocument();
    void readBody();

private:
    void leaveElement();
    void insert(Message &&message, qint64 place);
    void noteReplaced(const MessageKey &key, qint64 place);

    XmlSource &m_xml;
    MessageTable &m_table;
    Leftovers &m_leftovers;
    qint64 m_leftDepth = 0; // of the open element outside of a table that was left; 0 if there is none

    // The messages that were read, in their order, and, once a key occurs twice, where each key was last.
    std::vector<std::pair<const MessageKey *, qint64>> m_read;
    QHash<MessageKey, qint64> m_placeOf;
};

void TableReader::readDocument()
{
    for (;;) {
        switch (m_xml.next()) {
        case XmlSource::Token::StartElement:
            if (m_xml.name() == "messageTable")
                readBody();
            else
                leaveElement();
            break;
        case XmlSource::Token::EndElement:
            if (m_xml.depth() < m_leftDepth)
                m_leftDepth = 0;
            break;
        case XmlSource::Token::Comment:
            leaveText(m_xml, m_leftovers);
            break;
        case XmlSource::Token::End:
            return;
        default:
            break;
        }
    }
}

// An element in one that was left is not counted.
void TableReader::leaveElement()
{
    if (m_leftDepth != 0)
        return;
    m_leftDepth = m_xml.depth();
    leave(m_xml, m_leftovers, startTag(m_xml));
}

void TableReader::readBody()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "messageTable", unit);
    m_leftDepth = 0;
    for (const XmlSource::Attribute &attribute : m_xml.attributes()) {
        if (attribute.name != "xsi:schemaLocation")
            leaveAttribute(m_xml, m_leftovers, attribute);
    }
    for (;;) {
        switch (m_xml.next()) {
        case XmlSource::Token::StartElement: {
            if (m_xml.name() != "message") {
                leave(m_xml, m_leftovers, startTag(m_xml));
                break;
            }
            const qint64 place = m_xml.place();
            if (std::optional<Message> message = readMessage(m_xml, m_leftovers))
                insert(std::move(*message), place);
            break;
        }
        case XmlSource::Token::EndElement:
        case XmlSource::Token::End:
            return;
        default:
            leaveText(m_xml, m_leftovers);
            break;
        }
    }
}

void TableReader::insert(Message &&message, qint64 place)
{
    const auto [inserted, isNew] = m_table.insert(std::move(message));
    if (!isNew)
        noteReplaced(inserted->first, place);
    else if (!m_placeOf.isEmpty())
        m_placeOf.insert(inserted->first, place);
    m_read.emplace_back(&inserted->first, place);
}

// The replaced message may be one that the table had before.
void TableReader::noteReplaced(const MessageKey &key, qint64 place)
{
    if (m_placeOf.isEmpty()) {
        for (const auto &[earlier, where] : m_read)
            m_placeOf.insert(*earlier, where);
    }
    if (const auto earlier = m_placeOf.constFind(key); earlier != m_placeOf.cend())
        m_leftovers.add({m_xml.lineOf(*earlier), key.displayText(), m_xml.lineOf(place)});
    m_placeOf.insert(key, place);
}

// A mark that git writes at the beginning of a line, seven times the same character. Our writer never writes
// these characters, and a line of "=" alone may be part of a text.
bool isConflictMark(const QByteArray &line)
{
    constexpr qsizetype length = 7;
    return (line.startsWith("<<<<<<<") || line.startsWith(">>>>>>>")) &&
           (line.size() == length || line.at(length) == ' ' || line.at(length) == '\r' ||
            line.at(length) == '\n');
}

/// The first line with such a mark that begins within so many bytes of the device; 0 if there is none.
qint64 lineWithConflictMark(QIODevice &device, qint64 bytes)
{
    constexpr qint64 enough = 64;
    if (device.isSequential() || !device.seek(0))
        return 0;
    qint64 number = 1;
    for (bool isBegin = true; device.pos() < bytes;) {
        const QByteArray piece = device.readLine(enough);
        if (piece.isEmpty())
            return 0;
        if (isBegin && isConflictMark(piece))
            return number;
        isBegin = piece.endsWith('\n');
        number += isBegin ? 1 : 0;
    }
    return 0;
}

/// The same for the documents that a PlainXmlSource reads. Returns false if it is none of these; the device
/// is then where it was.
bool readPlainMessageTable(QIODevice &device, MessageTable &table, Leftovers &leftovers)
{
    const qint64 begin = device.pos();
    const bool isText = device.isTextModeEnabled();
    device.setTextModeEnabled(false);
    PlainXmlSource source(device);
    TableReader(source, table, leftovers).readDocument();
    device.setTextModeEnabled(isText);
    if (source.isComplete())
        return true;
    leftovers = Leftovers();
    device.seek(begin);
    return false;
}

} // namespace

void readMessageTableBody(XmlSource &xml, MessageTable &table, Leftovers &leftovers)
{
    TableReader(xml, table, leftovers).readBody();
}

TableReading readMessageTableWithQt(QIODevice &device, MessageTable &table)
{
    QXmlStreamReader xml(&device);
    TableReading reading;
    reading.errorLine = limitExpansion(xml, device);
    if (reading.errorLine != 0) {
        reading.error = tooManyAttributes();
        return reading;
    }
    QtXmlSource source(xml);
    TableReader(source, table, reading.leftovers).readDocument();
    reading.succeeded = !xml.hasError();
    if (xml.hasError()) {
        reading.error = xml.errorString();
        reading.errorLine = xml.lineNumber();
    }
    // What follows an error is not looked at: it may be a large file in another format.
    constexpr qint64 bytesOfACharacter = 4;
    const qint64 read = xml.hasError() ? bytesOfACharacter * (xml.characterOffset() + 1) : device.size();
    if (const qint64 line = lineWithConflictMark(device, read)) {
        reading.succeeded = false;
        reading.error = Texts::tr("The marks of an unfinished merge");
        reading.errorLine = line;
    }
    return reading;
}

TableReading readMessageTable(QIODevice &device, MessageTable &table)
{
    TableReading reading;
    MessageTable plain;
    if (readPlainMessageTable(device, plain, reading.leftovers)) {
        reading.succeeded = true;
        table.merge(std::move(plain));
    } else {
        reading = readMessageTableWithQt(device, table);
    }
    if (const auto *file = qobject_cast<const QFileDevice *>(&device))
        table.setFile(file->fileName(), reading.leftovers);
    return reading;
}

bool writeMessageTable(QIODevice &device, const MessageTable &table)
{
    const QString nameSpace = u"http://www.velmora.example/nvx/messageTable"_s;
    XmlWriter xml;
    xml.startElement("messageTable");
    xml.attribute("xmlns", nameSpace);
    xml.attribute("xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance");
    xml.attribute("xsi:schemaLocation", nameSpace + u" ErrorTable.xsd"_s);
    for (const auto &[key, message] : table)
        writeMessage(xml, message);
    xml.endElement();
    const QByteArray document = xml.takeDocument();
    return !xml.hasError() && device.write(document) == document.size();
}

} // namespace Clt
