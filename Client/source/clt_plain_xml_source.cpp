#include "clt_plain_xml_source.h"

#include "clt_plain_xml_text.h"
#include "clt_xml_text.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <utility>

namespace Clt {

using namespace PlainXml;

namespace {

// Larger documents are left to the other source.
constexpr qint64 maximumSize = qint64{1024} * 1024 * 1024;
constexpr std::size_t maximumDepth = 200;
constexpr std::size_t maximumAttributes = 16;
constexpr qint64 chunk = qint64{256} * 1024;

constexpr std::string_view schemaNameSpace = "xmlns:xsi";
constexpr std::string_view schemaLocation = "xsi:schemaLocation";

bool isAttributePlain(char byte)
{
    return byte != '\n' && byte != '\t' && kindOf(byte) == Kind::Plain;
}

bool isNameSpace(std::string_view attribute)
{
    return attribute == "xmlns" || attribute == schemaNameSpace;
}

std::string_view viewOf(const char *begin, const char *end)
{
    return {begin, static_cast<std::size_t>(end - begin)};
}

} // namespace

PlainXmlSource::PlainXmlSource(QIODevice &device)
    : m_device(device)
{
    const qint64 size = device.isSequential() ? 0 : device.size() - device.pos();
    m_isDeclined = size <= 0 || size > maximumSize;
    if (!m_isDeclined)
        m_bytes = QByteArray(static_cast<qsizetype>(size), Qt::Uninitialized);
    m_at = m_bytes.constData();
    m_end = m_at;
    m_limit = m_at + m_bytes.size();
    m_isDeclined = m_isDeclined || !skipDeclaration();
}

XmlSource::Token PlainXmlSource::next()
{
    m_token = m_isDeclined ? Token::End : take();
    if (m_isDeclined)
        m_token = Token::End;
    return m_token;
}

XmlSource::Token PlainXmlSource::decline()
{
    m_isDeclined = true;
    return Token::End;
}

// Reads into the place that the whole document will need, so that views of it stay valid.
bool PlainXmlSource::readMore()
{
    if (m_end == m_limit)
        return false;
    char *const begin = m_bytes.data() + (m_end - m_bytes.constData());
    const qint64 read = m_device.read(begin, std::min<qint64>(chunk, m_limit - m_end));
    if (read <= 0) {
        m_isDeclined = true;
        return false;
    }
    m_end += read;
    return true;
}

/// The first such byte; null if there is none.
const char *PlainXmlSource::find(const char *from, char wanted)
{
    for (;;) {
        const auto left = static_cast<std::size_t>(m_end - from);
        if (const void *found = std::memchr(from, wanted, left))
            return static_cast<const char *>(found);
        from = m_end;
        if (!readMore())
            return nullptr;
    }
}

bool PlainXmlSource::startsWith(std::string_view text)
{
    while (static_cast<std::size_t>(m_end - m_at) < text.size()) {
        if (!readMore())
            return false;
    }
    return viewOf(m_at, m_end).starts_with(text);
}

bool PlainXmlSource::skipDeclaration()
{
    for (const std::string_view text : {"\xEF\xBB\xBF", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
                                        "<?xml version=\"1.0\" encoding=\"utf-8\"?>"}) {
        if (startsWith(text))
            m_at += text.size();
    }
    return !m_isDeclined;
}

XmlSource::Token PlainXmlSource::take()
{
    if (m_isEmptyElement) {
        m_isEmptyElement = false;
        m_attributes.clear();
        m_open.pop_back();
        --m_depth;
        return Token::EndElement;
    }
    if (m_open.empty())
        return takeOutsideRoot();
    if (m_at == m_end && !readMore())
        return decline();
    if (*m_at != '<')
        return takeText();
    if (startsWith("</"))
        return takeEndTag();
    return startsWith("<!") ? takeComment() : takeStartTag();
}

XmlSource::Token PlainXmlSource::takeOutsideRoot()
{
    for (;;) {
        m_at = std::find_if_not(m_at, m_end, [](char byte) { return isSpace(byte) || byte == '\r'; });
        if (m_at != m_end) {
            if (*m_at != '<')
                return decline();
            if (startsWith("<!--"))
                return takeComment();
            if (!startsWith("<!"))
                return m_hasRoot ? decline() : takeStartTag();
            if (!skipDocumentType())
                return decline();
        } else if (!readMore()) {
            return m_hasRoot ? Token::End : decline();
        }
    }
}

XmlSource::Token PlainXmlSource::takeText()
{
    const char *const begin = m_at;
    const char *at = m_at;
    bool isPlain = true;
    for (;;) {
        Kind kind = Kind::Plain;
        while (at != m_end && (kind = kindOf(*at)) == Kind::Plain)
            ++at;
        if (at == m_end) {
            if (!readMore())
                return decline();
        } else if (kind == Kind::Markup) {
            break;
        } else if (kind == Kind::Forbidden) {
            return decline();
        } else {
            isPlain = false;
            ++at;
        }
    }
    m_at = at;
    m_text = viewOf(begin, at);
    m_isAscii = isPlain;
    if (!isPlain) {
        std::optional<QString> text = decoded(m_text);
        if (!text)
            return decline();
        m_decoded = *std::move(text);
    }
    return Token::Text;
}

QString PlainXmlSource::text() const
{
    return m_isAscii ? sharedText(m_text) : m_decoded;
}

/// The characters of plain ASCII text.
QString PlainXmlSource::sharedText(std::string_view text) const
{
    constexpr std::size_t longest = 64;
    if (text.empty() || text.size() > longest)
        return latin1(text);
    const auto byteAt = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const std::size_t number = text.size() + 7U * byteAt(0) + 31U * byteAt(text.size() - 1);
    RecentText &recent = m_recent[number % recentTexts];
    if (recent.bytes != text)
        recent = {text, latin1(text)};
    return recent.text;
}

bool PlainXmlSource::isWhiteSpace() const
{
    if (m_isAscii)
        return std::ranges::all_of(m_text, isSpace);
    return std::ranges::all_of(m_decoded, isXmlSpace);
}

XmlSource::Token PlainXmlSource::takeStartTag()
{
    const char *const close = find(m_at, '>');
    if (!close)
        return decline();
    const char *const begin = m_at + 1;
    const bool isEmpty = close[-1] == '/' && close - 1 > begin;
    const char *const end = isEmpty ? close - 1 : close;
    const char *const nameEnd = skipName(begin, end);
    if (nameEnd == begin || m_open.size() == maximumDepth)
        return decline();
    m_name = viewOf(begin, nameEnd);
    m_attributes.clear();
    if (nameEnd != end && !readAttributes(nameEnd, end))
        return decline();
    m_at = close + 1;
    m_open.push_back(m_name);
    ++m_depth;
    m_hasRoot = true;
    m_isEmptyElement = isEmpty;
    return Token::StartElement;
}

bool PlainXmlSource::readAttributes(const char *at, const char *end)
{
    while (at != end) {
        const char *const name = skipSpace(at, end);
        if (name == end)
            break;
        const char *const equals = std::find(name, end, '=');
        if (name == at || equals == end || end - equals < 3 || (equals[1] != '"' && equals[1] != '\''))
            return false;
        const char *const value = equals + 2;
        const char *const close = std::find(value, end, equals[1]);
        if (close == end)
            return false;
        if (!addAttribute(viewOf(name, equals), viewOf(value, close)))
            return false;
        at = close + 1;
    }
    // The prefix must be declared.
    if (hasAttribute(schemaLocation) && !hasAttribute(schemaNameSpace))
        return false;
    std::erase_if(m_attributes, [](const Attribute &attribute) { return isNameSpace(attribute.name); });
    return true;
}

bool PlainXmlSource::hasAttribute(std::string_view name) const
{
    return std::ranges::find(m_attributes, name, &Attribute::name) != m_attributes.end();
}

bool PlainXmlSource::addAttribute(std::string_view name, std::string_view value)
{
    const bool isPlainName = skipName(name.data(), name.data() + name.size()) == name.data() + name.size();
    if ((!isPlainName && name != schemaNameSpace && name != schemaLocation) || name.empty() ||
        hasAttribute(name) || m_attributes.size() == maximumAttributes)
        return false;
    if (isNameSpace(name) && (value.empty() || value.find("www.w3.org/XML/1998") != std::string_view::npos ||
                              value.find("www.w3.org/2000/xmlns") != std::string_view::npos))
        return false;
    const bool isPlainValue = std::ranges::all_of(value, [](char byte) { return isAttributePlain(byte); });
    if (isPlainValue) {
        m_attributes.push_back({name, sharedText(value)});
        return true;
    }
    if (std::ranges::any_of(value, [](char byte) { return byte == '<' || (byte != ' ' && isSpace(byte)); }))
        return false;
    const std::optional<QString> text = decoded(value);
    if (text)
        m_attributes.push_back({name, *text});
    return text.has_value();
}

XmlSource::Token PlainXmlSource::takeEndTag()
{
    const char *const close = find(m_at, '>');
    if (!close)
        return decline();
    const char *const name = m_at + 2;
    const std::string_view open = m_open.back();
    if (!viewOf(name, close).starts_with(open) || skipSpace(name + open.size(), close) != close)
        return decline();
    m_at = close + 1;
    m_name = open;
    m_attributes.clear();
    m_open.pop_back();
    --m_depth;
    return Token::EndElement;
}

XmlSource::Token PlainXmlSource::takeComment()
{
    static constexpr std::string_view begin = "<!--";
    if (!startsWith(begin))
        return decline();
    const char *const text = m_at + begin.size();
    const char *at = text;
    do {
        at = find(at, '-');
        if (!at)
            return decline();
        ++at;
    } while (at == m_end ? readMore() && *at != '-' : *at != '-');
    // Two hyphens occur only at the end.
    const char *const close = find(at, '>');
    if (close != at + 1 || !isCommentText(viewOf(text, at - 1)))
        return decline();
    m_at = close + 1;
    return Token::Comment;
}

bool PlainXmlSource::skipDocumentType()
{
    static constexpr std::string_view begin = "<!DOCTYPE ";
    const char *const close = find(m_at, '>');
    if (m_hasRoot || m_hasDocumentType || !close || !startsWith(begin))
        return false;
    const char *const name = m_at + begin.size();
    const char *const nameEnd = name < close ? skipName(name, close) : name;
    if (nameEnd == name || nameEnd != close)
        return false;
    m_hasDocumentType = true;
    m_at = close + 1;
    return true;
}

qint64 PlainXmlSource::lineOf(qint64 place) const
{
    if (place < m_countedPlace) {
        m_countedPlace = 0;
        m_countedLine = 1;
    }
    const char *const begin = m_bytes.constData();
    m_countedLine += std::count(begin + m_countedPlace, begin + place, '\n');
    m_countedPlace = place;
    return m_countedLine;
}

} // namespace Clt
