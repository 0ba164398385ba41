#include "clt_message_table_xml.h"

#include "clt_message_table.h"
#include "clt_message_xml.h"
#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

constexpr const char *unit = "clt_message_table";
constexpr int indentation = 3;

void writeNameSpace(QXmlStreamWriter &xml)
{
    const QString nameSpace = u"http://www.velmora.example/nvx/messageTable"_s;
    xml.writeAttribute(u"xmlns"_s, nameSpace);
    xml.writeAttribute(u"xmlns:xsi"_s, u"http://www.w3.org/2001/XMLSchema-instance"_s);
    xml.writeAttribute(u"xsi:schemaLocation"_s, nameSpace + u" ErrorTable.xsd"_s);
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

Nvx::Util::Outcome readMessageTable(QIODevice &device, MessageTable &table)
{
    QXmlStreamReader xml(&device);
    return readMessageTable(xml, table);
}

Nvx::Util::Outcome readMessageTable(QXmlStreamReader &xml, MessageTable &table)
{
    while (canRead(xml)) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"messageTable")
            readMessageTableBody(xml, table);
    }
    if (xml.hasError())
        return Nvx::Util::Failure{xml.errorString()};
    return Nvx::Util::Done();
}

bool writeMessageTable(QIODevice &device, const MessageTable &table)
{
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(indentation);
    xml.writeStartDocument();
    xml.writeStartElement(u"messageTable"_s);
    writeNameSpace(xml);
    for (const auto &[key, message] : table)
        writeMessage(xml, message);
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace Clt
