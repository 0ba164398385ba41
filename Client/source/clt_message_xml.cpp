#include "clt_message_xml.h"

#include "clt_leftovers.h"
#include "clt_xml_source.h"
#include "clt_xml_writer.h"
#include "nvx_util/assertion.h"

#include <cstddef>
#include <string_view>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

constexpr const char *unit = "clt_message";

bool hasTitle(const Message &message)
{
    return message.severity() == Severity::Critical || message.severity() == Severity::Question;
}

bool hasAction(const Message &message)
{
    return message.severity() == Severity::Critical;
}

QString valueTag(std::string_view name, const QString &value)
{
    const QString element = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
    return u"<%1>%2</%1>"_s.arg(element, shortened(value));
}

class MessageReader
{
public:
    MessageReader(XmlSource &xml, Leftovers &leftovers)
        : m_xml(xml)
        , m_leftovers(leftovers)
        , m_children(leftovers)
    {
    }

    std::optional<Message> read();

private:
    void readSeverity();
    void readChild();
    QString readText(std::size_t child);
    void readSolution();
    void readState();
    void leaveUnwritten();

    XmlSource &m_xml;
    Leftovers &m_leftovers;
    RepeatedChildren m_children;
    Message m_message;
    qint64 m_titlePlace = 0;
    qint64 m_actionPlace = 0;
};

std::optional<Message> MessageReader::read()
{
    readSeverity();
    for (;;) {
        switch (m_xml.next()) {
        case XmlSource::Token::EndElement:
            leaveUnwritten();
            return std::move(m_message);
        case XmlSource::Token::StartElement:
            readChild();
            break;
        case XmlSource::Token::End:
            return std::nullopt;
        default:
            leaveText(m_xml, m_leftovers);
            break;
        }
    }
}

void MessageReader::readSeverity()
{
    const QString severity = m_xml.attribute("severity");
    if (!isSeverity(severity)) {
        if (m_xml.declines())
            return;
        leaveAttribute(m_xml, m_leftovers, {"severity", severity});
    }
    m_message.setSeverity(textToSeverity(severity));
    for (const XmlSource::Attribute &attribute : m_xml.attributes()) {
        if (attribute.name != "severity")
            leaveAttribute(m_xml, m_leftovers, attribute);
    }
}

void MessageReader::readChild()
{
    const std::string_view name = m_xml.name();
    if (name == "key") {
        m_children.begin(m_xml, 0);
        m_message.setKey(readMessageKey(m_xml, m_leftovers));
    } else if (name == "title") {
        m_titlePlace = m_xml.place();
        m_message.setTitle(readText(1));
    } else if (name == "text") {
        m_message.setText(readText(2));
    } else if (name == "action") {
        m_actionPlace = m_xml.place();
        m_message.setAction(readText(3));
    } else if (name == "solution") {
        readSolution();
    } else if (name == "state") {
        readState();
    } else {
        leave(m_xml, m_leftovers, startTag(m_xml));
    }
}

QString MessageReader::readText(std::size_t child)
{
    m_children.begin(m_xml, child);
    leaveAttributes(m_xml, m_leftovers);
    return readElementText(m_xml, m_leftovers);
}

void MessageReader::readSolution()
{
    const QString text = readText(4);
    bool isNumber = false;
    m_message.setSolution(text.toInt(&isNumber));
    if (!isNumber)
        leave(m_xml, m_leftovers, valueTag("solution", text));
}

void MessageReader::readState()
{
    const QString text = readText(5);
    if (!isState(text)) {
        if (m_xml.declines())
            return;
        leave(m_xml, m_leftovers, valueTag("state", text));
    }
    m_message.setState(textToState(text));
}

void MessageReader::leaveUnwritten()
{
    if (!hasTitle(m_message) && !m_message.sourceTitle().isEmpty())
        m_leftovers.add({.line = m_xml.lineOf(m_titlePlace), .what = u"<title>"_s});
    if (!hasAction(m_message) && !m_message.sourceAction().isEmpty())
        m_leftovers.add({.line = m_xml.lineOf(m_actionPlace), .what = u"<action>"_s});
}

/// The text of the element that starts, a child of that number of a key.
QString readKeyText(XmlSource &xml, Leftovers &leftovers, RepeatedChildren &children, std::size_t child)
{
    children.begin(xml, child);
    leaveAttributes(xml, leftovers);
    return readElementText(xml, leftovers);
}

void writeMessageKey(XmlWriter &xml, const MessageKey &key)
{
    xml.startElement("key");
    xml.textElement("process", key.process);
    xml.textElement("context", key.context);
    xml.textElement("tag", key.tag);
    xml.endElement();
}

} // namespace

std::optional<Message> readMessage(XmlSource &xml, Leftovers &leftovers)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == "message", unit);
    return MessageReader(xml, leftovers).read();
}

MessageKey readMessageKey(XmlSource &xml, Leftovers &leftovers)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == "key", unit);
    leaveAttributes(xml, leftovers);
    MessageKey key;
    RepeatedChildren children(leftovers);
    for (;;) {
        switch (xml.next()) {
        case XmlSource::Token::StartElement:
            if (xml.name() == "process")
                key.process = readKeyText(xml, leftovers, children, 0);
            else if (xml.name() == "context")
                key.context = readKeyText(xml, leftovers, children, 1);
            else if (xml.name() == "tag")
                key.tag = readKeyText(xml, leftovers, children, 2);
            else
                leave(xml, leftovers, startTag(xml));
            break;
        case XmlSource::Token::EndElement:
        case XmlSource::Token::End:
            return key;
        default:
            leaveText(xml, leftovers);
            break;
        }
    }
}

void writeMessage(XmlWriter &xml, const Message &message)
{
    xml.startElement("message");
    xml.attribute("severity", severityToText(message.severity()));
    writeMessageKey(xml, message.key());
    if (hasTitle(message))
        xml.textElement("title", message.title());
    xml.textElement("text", message.text());
    if (hasAction(message))
        xml.textElement("action", message.action());
    if (message.state() != MessageState::InSync)
        xml.textElement("state", stateToText(message.state()));
    if (message.solution() != 0)
        xml.textElement("solution", QString::number(message.solution()));
    xml.endElement();
}

} // namespace Clt
