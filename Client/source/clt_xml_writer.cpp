#include "clt_xml_writer.h"

#include "clt_xml_text.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace Clt {

namespace {

constexpr std::string_view indentation = "   ";

// The longest that one UTF-16 code unit becomes: a "byte" element.
constexpr qsizetype longestUnit = 24;

/// True for the ASCII characters that are written as they are, everywhere.
constexpr std::array<bool, 128> plainCharacters()
{
    std::array<bool, 128> plain{};
    for (std::size_t character = ' '; character < plain.size(); ++character)
        plain[character] = true;
    for (const char special : {'<', '>', '&', '"'})
        plain[static_cast<std::size_t>(special)] = false;
    return plain;
}

constexpr std::array<bool, 128> isPlain = plainCharacters();

/// The reference for a character that is not written as such; empty if it is.
std::string_view referenceFor(char16_t unit, bool isAttribute)
{
    switch (unit) {
    case u'<':
        return "&lt;";
    case u'>':
        return "&gt;";
    case u'&':
        return "&amp;";
    case u'"':
        return "&quot;";
    case u'\r': // A reader treats others as line feeds.
        return "&#13;";
    case u'\n':
        return isAttribute ? "&#10;" : "";
    case u'\t':
        return isAttribute ? "&#9;" : "";
    default:
        return {};
    }
}

} // namespace

XmlWriter::XmlWriter(Unrepresentable unrepresentable)
    : m_unrepresentable(unrepresentable)
{
    append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
}

void XmlWriter::writeLine(std::string_view line)
{
    append("\n");
    append(line);
}

void XmlWriter::startElement(std::string_view name)
{
    appendStartTag(name);
    m_open.push_back(name);
    m_isInStartTag = true;
}

void XmlWriter::attribute(std::string_view name, QStringView value)
{
    appendAttribute(name, value);
}

void XmlWriter::endElement()
{
    const std::string_view name = m_open.back();
    m_open.pop_back();
    if (std::exchange(m_isInStartTag, false)) {
        append("/>");
        return;
    }
    appendLineBreak();
    appendEndTag(name);
}

void XmlWriter::textElement(std::string_view name, QStringView text)
{
    appendStartTag(name);
    append(">");
    appendText(text, Place::Text);
    appendEndTag(name);
}

void XmlWriter::textElement(std::string_view name, std::string_view attributeName, QStringView value,
                            QStringView text)
{
    appendStartTag(name);
    appendAttribute(attributeName, value);
    append(">");
    appendText(text, Place::Text);
    appendEndTag(name);
}

QByteArray XmlWriter::takeDocument()
{
    append("\n");
    m_bytes.truncate(std::exchange(m_size, 0));
    return std::exchange(m_bytes, {});
}

void XmlWriter::reserve(qsizetype bytes)
{
    if (m_bytes.size() - m_size < bytes)
        m_bytes.resize(std::max(2 * m_bytes.size(), m_size + bytes));
}

void XmlWriter::append(std::string_view bytes)
{
    reserve(static_cast<qsizetype>(bytes.size()));
    std::memcpy(m_bytes.data() + m_size, bytes.data(), bytes.size());
    m_size += static_cast<qsizetype>(bytes.size());
}

void XmlWriter::appendBytes(std::initializer_list<char> bytes)
{
    append({bytes.begin(), bytes.size()});
}

void XmlWriter::appendLineBreak()
{
    append("\n");
    for (std::size_t level = 0; level < m_open.size(); ++level)
        append(indentation);
}

void XmlWriter::appendStartTag(std::string_view name)
{
    if (std::exchange(m_isInStartTag, false))
        append(">");
    appendLineBreak();
    append("<");
    append(name);
}

void XmlWriter::appendEndTag(std::string_view name)
{
    append("</");
    append(name);
    append(">");
}

void XmlWriter::appendAttribute(std::string_view name, QStringView value)
{
    append(" ");
    append(name);
    append("=\"");
    appendText(value, Place::Attribute);
    append("\"");
}

void XmlWriter::appendText(QStringView text, Place place)
{
    const char16_t *const units = text.utf16();
    for (qsizetype at = 0; at < text.size();) {
        reserve(text.size() - at + longestUnit);
        // Everything plain fits.
        char *out = m_bytes.data() + m_size;
        const qsizetype begin = at;
        while (at < text.size() && units[at] < isPlain.size() && isPlain[units[at]])
            *out++ = static_cast<char>(units[at++]);
        m_size += at - begin;
        if (at < text.size())
            at += appendSpecial(text, at, place);
    }
}

/// Writes a character that is not plain. Returns its number of code units.
qsizetype XmlWriter::appendSpecial(QStringView text, qsizetype at, Place place)
{
    const char16_t unit = text.utf16()[at];
    const std::string_view reference = referenceFor(unit, place == Place::Attribute);
    if (!reference.empty()) {
        append(reference);
        return 1;
    }
    const bool isPair =
        QChar::isHighSurrogate(unit) && at + 1 < text.size() && QChar::isLowSurrogate(text.utf16()[at + 1]);
    const QStringView character = text.sliced(at, isPair ? 2 : 1);
    if (isXmlText(character)) {
        appendCharacter(isPair ? QChar::surrogateToUcs4(unit, text.utf16()[at + 1]) : char32_t{unit});
    } else {
        appendUnrepresentable(unit, place);
    }
    return character.size();
}

void XmlWriter::appendCharacter(char32_t character)
{
    const auto continuation = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    const auto first = [character](int mark, int shift) {
        return static_cast<char>(static_cast<char32_t>(mark) | (character >> shift));
    };
    if (character < 0x80)
        appendBytes({first(0, 0)});
    else if (character < 0x800)
        appendBytes({first(0xC0, 6), continuation(0)});
    else if (character < 0x10000)
        appendBytes({first(0xE0, 12), continuation(6), continuation(0)});
    else
        appendBytes({first(0xF0, 18), continuation(12), continuation(6), continuation(0)});
}

void XmlWriter::appendUnrepresentable(char16_t unit, Place place)
{
    if (m_unrepresentable == Unrepresentable::Error || place == Place::Attribute || unit == u'\0') {
        m_hasError = true;
        return;
    }
    const QByteArray number = QByteArray::number(unit, 16);
    append("<byte value=\"x");
    append({number.constData(), static_cast<std::size_t>(number.size())});
    append("\"/>");
}

} // namespace Clt
