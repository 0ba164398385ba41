#include "clt_leftovers.h"
#include "clt_plain_xml_source.h"
#include "clt_xml_source.h"
#include "nvx_util/assertion.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QFileDevice>
#include <QHash>
#include <QXmlStreamReader>

#include <optional>
#include <string_view>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Translation {

namespace {

using Clt::XmlSource;
using Token = Clt::XmlSource::Token;

constexpr const char *unit = "error_translation_table";

/// The character of a "byte" element; empty if its number is not that of a UTF-16 code unit.
QString byteCharacter(const QString &value)
{
    const bool isHexadecimal = value.startsWith(u'x');
    const ushort number =
        isHexadecimal ? QStringView(value).sliced(1).toUShort(nullptr, 16) : value.toUShort();
    return number == 0 ? QString() : QString(QChar(number));
}

/// Reads a document into a table.
class Reader
{
public:
    Reader(XmlSource &xml, TranslationTable &table, Clt::Leftovers &leftovers)
        : m_xml(xml)
        , m_table(table)
        , m_leftovers(leftovers)
    {
    }

    TranslationRoot read();

private:
    void leaveElement();
    void readRoot();
    void readRootChild(Clt::RepeatedChildren &children);
    void readContext();
    void storeContext(const QString &name, TranslationMessages &&messages, qint64 place);
    void readMessage(TranslationMessages &messages);
    void readMessageChild(TranslationMessage &message, Clt::RepeatedChildren &children);
    QString readTextOnly();
    QString readText();
    QString readByte();

    XmlSource &m_xml;
    TranslationTable &m_table;
    Clt::Leftovers &m_leftovers;
    qint64 m_leftDepth = 0; // of the open element outside of a root that was left; 0 if there is none
    QHash<QString, qint64> m_contextPlaces;
};

TranslationRoot Reader::read()
{
    auto root = TranslationRoot::Missing;
    for (;;) {
        switch (m_xml.next()) {
        case Token::StartElement:
            if (m_xml.name() == "TS") {
                readRoot();
                root = TranslationRoot::Found;
            } else {
                leaveElement();
            }
            break;
        case Token::EndElement:
            if (m_xml.depth() < m_leftDepth)
                m_leftDepth = 0;
            break;
        case Token::Comment:
            leaveText(m_xml, m_leftovers);
            break;
        case Token::End:
            return root;
        default:
            break;
        }
    }
}

// An element in one that was left is not counted.
void Reader::leaveElement()
{
    if (m_leftDepth != 0)
        return;
    m_leftDepth = m_xml.depth();
    leave(m_xml, m_leftovers, startTag(m_xml));
}

void Reader::readRoot()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "TS", unit);
    m_leftDepth = 0;
    m_table.setVersion(m_xml.attribute("version"));
    m_table.setLanguage(m_xml.attribute("language"));
    for (const XmlSource::Attribute &attribute : m_xml.attributes()) {
        if (attribute.name != "version" && attribute.name != "language" && attribute.name != "sourcelanguage")
            leaveAttribute(m_xml, m_leftovers, attribute);
    }
    Clt::RepeatedChildren children(m_leftovers);
    for (;;) {
        switch (m_xml.next()) {
        case Token::StartElement:
            readRootChild(children);
            break;
        case Token::EndElement:
        case Token::End:
            return;
        default:
            leaveText(m_xml, m_leftovers);
            break;
        }
    }
}

void Reader::readRootChild(Clt::RepeatedChildren &children)
{
    if (m_xml.name() == "context") {
        readContext();
    } else if (m_xml.name() == "defaultcodec") {
        children.begin(m_xml, 0);
        m_table.setDefaultCodec(readTextOnly());
    } else {
        leave(m_xml, m_leftovers, startTag(m_xml));
        skipElement(m_xml);
    }
}

// The name need not be the first element. A context at the end of a damaged document is stored once one of
// its messages is complete.
void Reader::readContext()
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "context", unit);
    const qint64 place = m_xml.place();
    leaveAttributes(m_xml, m_leftovers);
    QString name;
    TranslationMessages messages;
    Clt::RepeatedChildren children(m_leftovers);
    for (;;) {
        switch (m_xml.next()) {
        case Token::StartElement:
            if (m_xml.name() == "name") {
                children.begin(m_xml, 0);
                name = readTextOnly();
            } else if (m_xml.name() == "message") {
                readMessage(messages);
            } else {
                leave(m_xml, m_leftovers, startTag(m_xml));
                skipElement(m_xml);
            }
            break;
        case Token::EndElement:
            storeContext(name, std::move(messages), place);
            return;
        case Token::End:
            if (!messages.empty())
                storeContext(name, std::move(messages), place);
            return;
        default:
            leaveText(m_xml, m_leftovers);
            break;
        }
    }
}

void Reader::storeContext(const QString &name, TranslationMessages &&messages, qint64 place)
{
    if (const auto earlier = m_contextPlaces.constFind(name); earlier != m_contextPlaces.cend()) {
        m_leftovers.add(
            {m_xml.lineOf(*earlier), u"<context> "_s + Clt::shortened(name), m_xml.lineOf(place)});
    }
    m_contextPlaces.insert(name, place);
    m_table.setContext(TranslationContext(name, std::move(messages)));
}

/// Appends the message unless the document ends within it.
void Reader::readMessage(TranslationMessages &messages)
{
    NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "message", unit);
    for (const XmlSource::Attribute &attribute : m_xml.attributes()) {
        if (attribute.name != "numerus" || attribute.value != "no"_L1)
            leaveAttribute(m_xml, m_leftovers, attribute);
    }
    TranslationMessage message;
    Clt::RepeatedChildren children(m_leftovers);
    for (;;) {
        switch (m_xml.next()) {
        case Token::StartElement:
            readMessageChild(message, children);
            break;
        case Token::EndElement:
            messages.push_back(std::move(message));
            return;
        case Token::End:
            return;
        default:
            leaveText(m_xml, m_leftovers);
            break;
        }
    }
}

void Reader::readMessageChild(TranslationMessage &message, Clt::RepeatedChildren &children)
{
    const std::string_view name = m_xml.name();
    if (name == "source") {
        children.begin(m_xml, 0);
        message.source = readTextOnly();
    } else if (name == "translation") {
        children.begin(m_xml, 1);
        message.type = m_xml.attribute("type");
        for (const XmlSource::Attribute &attribute : m_xml.attributes()) {
            if (attribute.name != "type")
                leaveAttribute(m_xml, m_leftovers, attribute);
        }
        message.translation = readText();
    } else if (name == "comment") {
        children.begin(m_xml, 2);
        message.comment = readTextOnly();
    } else {
        if (name != "location")
            leave(m_xml, m_leftovers, startTag(m_xml));
        skipElement(m_xml);
    }
}

/// The text of an element that has no attributes.
QString Reader::readTextOnly()
{
    leaveAttributes(m_xml, m_leftovers);
    return readText();
}

/// The text of the element that starts, which is read to its end. Its children, such as plural forms and
/// length variants, are left, and so is white space that only separates them.
QString Reader::readText()
{
    QString text;
    bool hasElements = false;
    for (;;) {
        switch (m_xml.next()) {
        case Token::Text:
            if (text.isNull())
                text = m_xml.text();
            else
                text += m_xml.text();
            break;
        case Token::StartElement:
            if (m_xml.name() == "byte") {
                text += readByte();
            } else {
                hasElements = true;
                leave(m_xml, m_leftovers, startTag(m_xml));
                skipElement(m_xml);
            }
            break;
        case Token::Comment:
            leaveText(m_xml, m_leftovers);
            break;
        default:
            return hasElements && QStringView(text).trimmed().isEmpty() ? QString() : text;
        }
    }
}

QString Reader::readByte()
{
    const QString value = m_xml.attribute("value");
    QString character = byteCharacter(value);
    if (character.isEmpty())
        leaveAttribute(m_xml, m_leftovers, {"value", value});
    skipElement(m_xml);
    return character;
}

Nvx::Util::Failure failureAt(const QString &error, qint64 line)
{
    return {u"%1 at line %2"_s.arg(error, QString::number(line))};
}

Nvx::Util::Result<TranslationRoot> readWithQt(QIODevice &device, TranslationTable &table,
                                              Clt::Leftovers &leftovers)
{
    QXmlStreamReader xml(&device);
    if (const qint64 line = Clt::limitExpansion(xml, device))
        return failureAt(Clt::tooManyAttributes(), line);
    Clt::QtXmlSource source(xml);
    const TranslationRoot root = Reader(source, table, leftovers).read();
    if (xml.hasError())
        return failureAt(xml.errorString(), xml.lineNumber());
    return root;
}

/// The same for the documents that a PlainXmlSource reads; std::nullopt for others. The device is then where
/// it was, and the table is unchanged.
std::optional<TranslationRoot> readPlain(QIODevice &device, TranslationTable &table,
                                         Clt::Leftovers &leftovers)
{
    const qint64 begin = device.pos();
    const bool isText = device.isTextModeEnabled();
    device.setTextModeEnabled(false);
    TranslationTable plain = table;
    Clt::Leftovers plainLeftovers;
    Clt::PlainXmlSource source(device);
    const TranslationRoot root = Reader(source, plain, plainLeftovers).read();
    device.setTextModeEnabled(isText);
    if (!source.isComplete()) {
        device.seek(begin);
        return std::nullopt;
    }
    table = std::move(plain);
    leftovers = plainLeftovers;
    return root;
}

/// Passes what was left over to the table, for its next save.
void setFile(TranslationTable &table, const QIODevice &device, const Clt::Leftovers &leftovers)
{
    const auto *file = qobject_cast<const QFileDevice *>(&device);
    table.setFile(file ? file->fileName() : QString(), leftovers);
}

} // namespace

Nvx::Util::Result<TranslationRoot> readTranslationTableWithQt(QIODevice &device, TranslationTable &table)
{
    Clt::Leftovers leftovers;
    const Nvx::Util::Result<TranslationRoot> root = readWithQt(device, table, leftovers);
    // A file in another format is saved as such.
    setFile(table, device, root && *root == TranslationRoot::Missing ? Clt::Leftovers() : leftovers);
    return root;
}

Nvx::Util::Result<TranslationRoot> readTranslationTable(QIODevice &device, TranslationTable &table)
{
    Clt::Leftovers leftovers;
    const std::optional<TranslationRoot> root = readPlain(device, table, leftovers);
    if (!root)
        return readTranslationTableWithQt(device, table);
    setFile(table, device, *root == TranslationRoot::Missing ? Clt::Leftovers() : leftovers);
    return *root;
}

} // namespace Translation
