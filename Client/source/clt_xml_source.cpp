#include "clt_xml_source.h"

#include "clt_leftovers.h"
#include "clt_xml_text.h"

#include <QCoreApplication>
#include <QIODevice>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

// How many characters a document may have more than it has bytes.
constexpr qint64 maximumExpansion = qint64{1024} * 1024;

// Qt's reader compares each attribute of an element with all others.
constexpr qint64 maximumAttributes = 10'000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(XmlSource)
};

QString utf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

QString XmlSource::attribute(std::string_view name) const
{
    const auto found = std::ranges::find(m_attributes, name, &Attribute::name);
    return found == m_attributes.end() ? QString() : found->value;
}

qint64 limitExpansion(QXmlStreamReader &xml, QIODevice &device)
{
    constexpr qint64 chunk = qint64{64} * 1024;
    constexpr qint64 least = 16;
    if (device.isSequential())
        return 0;
    const qint64 begin = device.pos();
    qint64 line = 1;
    qint64 references = 0;
    qint64 equals = 0; // since the last "<", so at least as many as the element has attributes
    for (QByteArray bytes; !(bytes = device.read(chunk)).isEmpty();) {
        for (const char byte : std::as_const(bytes)) {
            line += byte == '\n' ? 1 : 0;
            references += byte == '&' ? 1 : 0;
            equals = byte == '<' ? 0 : equals + (byte == '=' ? 1 : 0);
            if (equals > maximumAttributes)
                return line;
        }
    }
    device.seek(begin);
    const qint64 each = maximumExpansion / std::max<qint64>(references, 1);
    const auto limit = std::clamp<qint64>(each, least, xml.entityExpansionLimit());
    xml.setEntityExpansionLimit(static_cast<int>(limit));
    return 0;
}

QString tooManyAttributes()
{
    return Texts::tr("An element has too many attributes");
}

QtXmlSource::QtXmlSource(QXmlStreamReader &xml)
    : m_xml(xml)
{
    if (xml.tokenType() == QXmlStreamReader::StartElement)
        m_token = take(QXmlStreamReader::StartElement);
}

XmlSource::Token QtXmlSource::next()
{
    do {
        m_token = canRead(m_xml) ? take(m_xml.readNext()) : Token::End;
    } while (m_token == Token::None);
    return m_token;
}

XmlSource::Token QtXmlSource::take(QXmlStreamReader::TokenType type)
{
    switch (type) {
    case QXmlStreamReader::StartElement:
        ++m_depth;
        takeElement();
        return Token::StartElement;
    case QXmlStreamReader::EndElement:
        --m_depth;
        m_utf8Name = m_xml.name().toUtf8();
        m_name = view(m_utf8Name);
        return Token::EndElement;
    case QXmlStreamReader::Characters:
    case QXmlStreamReader::EntityReference:
        countCharacters(m_xml.text().size());
        return Token::Text;
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::ProcessingInstruction:
        return Token::Comment;
    case QXmlStreamReader::Invalid:
    case QXmlStreamReader::EndDocument:
        return Token::End;
    default:
        return Token::None;
    }
}

void QtXmlSource::takeElement()
{
    m_utf8Name = m_xml.name().toUtf8();
    m_name = view(m_utf8Name);
    const QXmlStreamAttributes attributes = m_xml.attributes();
    m_attributes.clear();
    m_attributeNames.clear();
    // The views of the names must stay valid.
    m_attributeNames.reserve(static_cast<std::size_t>(attributes.size()));
    for (const QXmlStreamAttribute &attribute : attributes) {
        m_attributeNames.push_back(attribute.qualifiedName().toUtf8());
        m_attributes.push_back({view(m_attributeNames.back()), attribute.value().toString()});
        countCharacters(attribute.value().size());
    }
}

// A document has at most as many characters as bytes, unless entities or default attributes expand to more.
void QtXmlSource::countCharacters(qint64 characters)
{
    m_characters += characters;
    if (m_characters > m_xml.characterOffset() + maximumExpansion && !m_xml.hasError())
        m_xml.raiseError(Texts::tr("The entities expand to too many characters"));
}

bool QtXmlSource::isWhiteSpace() const
{
    return std::ranges::all_of(m_xml.text(), isXmlSpace);
}

QString readElementText(XmlSource &xml, Leftovers &leftovers)
{
    QString text;
    for (;;) {
        switch (xml.next()) {
        case XmlSource::Token::Text:
            if (text.isNull())
                text = xml.text();
            else
                text += xml.text();
            break;
        case XmlSource::Token::Comment:
            leaveText(xml, leftovers);
            break;
        case XmlSource::Token::StartElement:
            xml.raiseError(u"Expected character data."_s);
            return text;
        default:
            return text;
        }
    }
}

void skipElement(XmlSource &xml)
{
    const qint64 outside = xml.depth() - 1;
    while (xml.depth() > outside && xml.next() != XmlSource::Token::End) {
    }
}

void RepeatedChildren::begin(const XmlSource &xml, std::size_t number)
{
    if (const qint64 earlier = std::exchange(m_places[number], xml.place() + 1); earlier != 0)
        m_leftovers.add({xml.lineOf(earlier - 1), startTag(xml), xml.line()});
}

QString startTag(const XmlSource &xml)
{
    return u'<' + utf8(xml.name()) + u'>';
}

void leave(const XmlSource &xml, Leftovers &leftovers, const QString &what)
{
    leftovers.add({.line = xml.line(), .what = what});
}

void leaveAttribute(const XmlSource &xml, Leftovers &leftovers, const XmlSource::Attribute &attribute)
{
    leave(xml, leftovers,
          u"<%1 %2=\"%3\">"_s.arg(utf8(xml.name()), utf8(attribute.name), shortened(attribute.value)));
}

void leaveAttributes(const XmlSource &xml, Leftovers &leftovers)
{
    for (const XmlSource::Attribute &attribute : xml.attributes())
        leaveAttribute(xml, leftovers, attribute);
}

void leaveText(const XmlSource &xml, Leftovers &leftovers)
{
    if (xml.token() == XmlSource::Token::Comment)
        leave(xml, leftovers, u"<!-- -->"_s);
    else if (xml.token() == XmlSource::Token::Text && !xml.isWhiteSpace())
        leave(xml, leftovers, u'"' + shortened(xml.text()) + u'"');
}

} // namespace Clt
