#include "clt_xml_text.h"
#include "nvx_util/assertion.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QFileDevice>
#include <QXmlStreamReader>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Translation {

namespace {

constexpr const char *unit = "error_translation_table";

/// The character of a "byte" element; empty if its number is not that of a UTF-16 code unit.
QString byteCharacter(const QXmlStreamReader &xml)
{
    const auto attributes = xml.attributes();
    const QStringView value = attributes.value("value"_L1);
    const bool isHexadecimal = value.startsWith(u'x');
    const ushort number = isHexadecimal ? value.sliced(1).toUShort(nullptr, 16) : value.toUShort();
    return number == 0 ? QString() : QString(QChar(number));
}

struct ElementText
{
    QString text;
    bool hasElements = false; ///< true if the element has children other than "byte"
};

/// Reads the current element to its end. The text of its children is left out, as is white space that only
/// separates them.
ElementText readElement(QXmlStreamReader &xml)
{
    ElementText element;
    while (Clt::canRead(xml)) {
        switch (xml.readNext()) {
        case QXmlStreamReader::Characters:
            element.text += xml.text();
            break;
        case QXmlStreamReader::StartElement:
            if (xml.name() == u"byte")
                element.text += byteCharacter(xml);
            else
                element.hasElements = true;
            xml.skipCurrentElement();
            break;
        case QXmlStreamReader::EndElement:
            if (element.hasElements && QStringView(element.text).trimmed().isEmpty())
                element.text.clear();
            return element;
        default:
            break;
        }
    }
    return element;
}

QString readText(QXmlStreamReader &xml)
{
    return readElement(xml).text;
}

/// Reads a document into a table, and remembers whether it has plural forms or length variants.
class Reader
{
public:
    Reader(QIODevice &device, TranslationTable &table)
        : m_xml(&device)
        , m_table(table)
    {
    }

    Nvx::Util::Result<TranslationRoot> read();
    bool hasForms() const { return m_hasForms; }

private:
    void readRoot();
    void readRootChild();
    std::optional<TranslationContext> readContext();
    std::optional<TranslationMessage> readMessage();
    void readMessageChild(TranslationMessage &message);

    QXmlStreamReader m_xml;
    TranslationTable &m_table;
    bool m_hasForms = false;
};

Nvx::Util::Result<TranslationRoot> Reader::read()
{
    auto root = TranslationRoot::Missing;
    while (Clt::canRead(m_xml)) {
        if (m_xml.readNext() != QXmlStreamReader::StartElement || m_xml.name() != u"TS")
            continue;
        readRoot();
        root = TranslationRoot::Found;
    }
    if (m_xml.hasError())
        return Nvx::Util::Failure{
            u"%1 at line %2"_s.arg(m_xml.errorString(), QString::number(m_xml.lineNumber()))};
    return root;
}

void Reader::readRoot()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == u"TS", unit);
    const QXmlStreamAttributes attributes = m_xml.attributes();
    m_table.setVersion(attributes.value("version"_L1).toString());
    m_table.setLanguage(attributes.value("language"_L1).toString());
    while (Clt::canRead(m_xml)) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return;
        if (token == QXmlStreamReader::StartElement)
            readRootChild();
    }
}

void Reader::readRootChild()
{
    if (m_xml.name() == u"context") {
        if (std::optional<TranslationContext> context = readContext())
            m_table.setContext(std::move(*context));
    } else if (m_xml.name() == u"defaultcodec") {
        m_table.setDefaultCodec(readText(m_xml));
    } else {
        m_xml.skipCurrentElement();
    }
}

// A context's name need not be its first element.
TranslationContext contextOf(const QString &name, const TranslationMessages &messages)
{
    TranslationContext context(name);
    for (const TranslationMessage &message : messages)
        context.append(message);
    return context;
}

/// std::nullopt if the document ends before the context's first message is complete.
std::optional<TranslationContext> Reader::readContext()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == u"context", unit);
    QString name;
    TranslationMessages messages;
    while (Clt::canRead(m_xml)) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return contextOf(name, messages);
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (m_xml.name() == u"name") {
            name = readText(m_xml);
        } else if (m_xml.name() == u"message") {
            if (const std::optional<TranslationMessage> message = readMessage())
                messages.push_back(*message);
        } else {
            m_xml.skipCurrentElement();
        }
    }
    if (messages.empty())
        return std::nullopt;
    return contextOf(name, messages);
}

/// std::nullopt if the document ends within the message.
std::optional<TranslationMessage> Reader::readMessage()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == u"message", unit);
    if (m_xml.attributes().value("numerus"_L1) == u"yes")
        m_hasForms = true;
    TranslationMessage message;
    while (Clt::canRead(m_xml)) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return message;
        if (token == QXmlStreamReader::StartElement)
            readMessageChild(message);
    }
    return std::nullopt;
}

void Reader::readMessageChild(TranslationMessage &message)
{
    const QStringView name = m_xml.name();
    if (name == u"source") {
        message.source = readText(m_xml);
    } else if (name == u"translation") {
        message.type = m_xml.attributes().value("type"_L1).toString();
        const ElementText translation = readElement(m_xml);
        message.translation = translation.text;
        // Each plural form or length variant is an element.
        m_hasForms = m_hasForms || translation.hasElements;
    } else if (name == u"comment") {
        message.comment = readText(m_xml);
    } else {
        m_xml.skipCurrentElement();
    }
}

} // namespace

Nvx::Util::Result<TranslationRoot> readTranslationTable(QIODevice &device, TranslationTable &table)
{
    Reader reader(device, table);
    const Nvx::Util::Result<TranslationRoot> root = reader.read();
    const auto *file = qobject_cast<QFileDevice *>(&device);
    table.setFileWithForms(reader.hasForms() && file ? file->fileName() : QString());
    return root;
}

} // namespace Translation
