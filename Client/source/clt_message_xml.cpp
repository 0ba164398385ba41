#include "clt_message_xml.h"

#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Clt {

namespace {

constexpr const char *unit = "clt_message";

void readMessageChild(QXmlStreamReader &xml, Message &message)
{
    const QStringView name = xml.name();
    if (name == u"key")
        message.setKey(readMessageKey(xml));
    else if (name == u"title")
        message.setTitle(xml.readElementText());
    else if (name == u"text")
        message.setText(xml.readElementText());
    else if (name == u"action")
        message.setAction(xml.readElementText());
    else if (name == u"solution")
        message.setSolution(xml.readElementText().toInt());
    else if (name == u"state")
        message.setState(textToState(xml.readElementText()));
}

void readKeyChild(QXmlStreamReader &xml, MessageKey &key)
{
    const QStringView name = xml.name();
    if (name == u"process")
        key.process = xml.readElementText();
    else if (name == u"context")
        key.context = xml.readElementText();
    else if (name == u"tag")
        key.tag = xml.readElementText();
}

bool hasTitle(const Message &message)
{
    return message.severity() == Severity::Critical || message.severity() == Severity::Question;
}

bool hasAction(const Message &message)
{
    return message.severity() == Severity::Critical;
}

void writeMessageKey(QXmlStreamWriter &xml, const MessageKey &key)
{
    xml.writeStartElement(QStringLiteral("key"));
    writeXmlTextElement(xml, QStringLiteral("process"), key.process);
    writeXmlTextElement(xml, QStringLiteral("context"), key.context);
    writeXmlTextElement(xml, QStringLiteral("tag"), key.tag);
    xml.writeEndElement();
}

} // namespace

std::optional<Message> readMessage(QXmlStreamReader &xml)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"message", unit);
    Message message;
    message.setSeverity(textToSeverity(xml.attributes().value(QLatin1String("severity"))));
    while (canRead(xml)) {
        switch (xml.readNext()) {
        case QXmlStreamReader::EndElement:
            return message;
        case QXmlStreamReader::StartElement:
            readMessageChild(xml, message);
            break;
        default:
            break;
        }
    }
    return std::nullopt;
}

MessageKey readMessageKey(QXmlStreamReader &xml)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"key", unit);
    MessageKey key;
    while (canRead(xml)) {
        switch (xml.readNext()) {
        case QXmlStreamReader::EndElement:
            return key;
        case QXmlStreamReader::StartElement:
            readKeyChild(xml, key);
            break;
        default:
            break;
        }
    }
    return key;
}

void writeMessage(QXmlStreamWriter &xml, const Message &message)
{
    xml.writeStartElement(QStringLiteral("message"));
    xml.writeAttribute(QStringLiteral("severity"), severityToText(message.severity()));
    writeMessageKey(xml, message.key());
    if (hasTitle(message))
        writeXmlTextElement(xml, QStringLiteral("title"), message.title());
    writeXmlTextElement(xml, QStringLiteral("text"), message.text());
    if (hasAction(message))
        writeXmlTextElement(xml, QStringLiteral("action"), message.action());
    if (message.state() != MessageState::InSync)
        writeXmlTextElement(xml, QStringLiteral("state"), stateToText(message.state()));
    if (message.solution() != 0)
        writeXmlTextElement(xml, QStringLiteral("solution"), QString::number(message.solution()));
    xml.writeEndElement();
}

} // namespace Clt
