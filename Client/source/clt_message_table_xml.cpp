#include "clt_message_table_xml.h"

#include "clt_message_table.h"
#include "clt_message_xml.h"
#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <utility>

namespace Clt {

namespace {

constexpr const char *unit = "clt_message_table";
constexpr int indentation = 3;

void writeNameSpace(QXmlStreamWriter &xml)
{
    const QString nameSpace = QStringLiteral("http://www.velmora.example/nvx/messageTable");
    xml.writeAttribute(QStringLiteral("xmlns"), nameSpace);
    xml.writeAttribute(QStringLiteral("xmlns:xsi"),
                       QStringLiteral("http://www.w3.org/2001/XMLSchema-instance"));
    xml.writeAttribute(QStringLiteral("xsi:schemaLocation"), nameSpace + QStringLiteral(" ErrorTable.xsd"));
}

} // namespace

void readMessageTableBody(QXmlStreamReader &xml, MessageTable &table)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"messageTable", unit);
    while (canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return;
        if (token != QXmlStreamReader::StartElement || xml.name() != u"message")
            continue;
        if (std::optional<Message> message = readMessage(xml))
            table.insert(std::move(*message));
    }
}

bool readMessageTable(QIODevice &device, MessageTable &table)
{
    QXmlStreamReader xml(&device);
    return readMessageTable(xml, table);
}

bool readMessageTable(QXmlStreamReader &xml, MessageTable &table)
{
    while (canRead(xml)) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"messageTable")
            readMessageTableBody(xml, table);
    }
    return !xml.hasError();
}

bool writeMessageTable(QIODevice &device, const MessageTable &table)
{
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(indentation);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("messageTable"));
    writeNameSpace(xml);
    for (const auto &[key, message] : table)
        writeMessage(xml, message);
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace Clt
