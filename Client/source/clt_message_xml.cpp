#include "clt_message_xml.h"

#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

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
    xml.writeStartElement(u"key"_s);
    writeXmlTextElement(xml, u"process"_s, key.process);
    writeXmlTextElement(xml, u"context"_s, key.context);
    writeXmlTextElement(xml, u"tag"_s, key.tag);
    xml.writeEndElement();
}

} // namespace

std::optional<Message> readMessage(QXmlStreamReader &xml)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"message", unit);
    Message message;
    message.setSeverity(textToSeverity(xml.attributes().value("severity"_L1)));
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
    xml.writeStartElement(u"message"_s);
    xml.writeAttribute(u"severity"_s, severityToText(message.severity()));
    writeMessageKey(xml, message.key());
    if (hasTitle(message))
        writeXmlTextElement(xml, u"title"_s, message.title());
    writeXmlTextElement(xml, u"text"_s, message.text());
    if (hasAction(message))
        writeXmlTextElement(xml, u"action"_s, message.action());
    if (message.state() != MessageState::InSync)
        writeXmlTextElement(xml, u"state"_s, stateToText(message.state()));
    if (message.solution() != 0)
        writeXmlTextElement(xml, u"solution"_s, QString::number(message.solution()));
    xml.writeEndElement();
}

} // namespace Clt
