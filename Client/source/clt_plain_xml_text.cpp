#include "clt_plain_xml_text.h"

#include "clt_xml_text.h"

#include <QByteArray>
#include <QStringDecoder>

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace Clt::PlainXml {

namespace {

/// The number of the character that a reference such as "#13" or "#xd" names; 0 if it names none.
char32_t numberedCharacter(std::string_view reference)
{
    reference.remove_prefix(1);
    const bool isHexadecimal = reference.starts_with('x');
    if (isHexadecimal)
        reference.remove_prefix(1);
    const char *end = reference.data() + reference.size();
    std::uint32_t number = 0;
    const auto [last, error] = std::from_chars(reference.data(), end, number, isHexadecimal ? 16 : 10);
    const bool isNumber = error == std::errc() && last == end;
    const bool isCharacter = number <= QChar::LastValidCodePoint && !QChar::isSurrogate(number);
    return isNumber && isCharacter ? char32_t{number} : U'\0';
}

/// The character of a reference; 0 if it is not one of those that every document has.
char32_t referencedCharacter(std::string_view reference)
{
    struct Entity
    {
        std::string_view name;
        char32_t character;
    };
    static constexpr std::array<Entity, 5> entities{
        {{"amp", U'&'}, {"lt", U'<'}, {"gt", U'>'}, {"quot", U'"'}, {"apos", U'\''}}};
    if (reference.starts_with('#'))
        return numberedCharacter(reference);
    const auto found = std::ranges::find(entities, reference, &Entity::name);
    return found == entities.end() ? U'\0' : found->character;
}

void appendUtf8(QByteArray &bytes, char32_t character)
{
    bytes += QString::fromUcs4(&character, 1).toUtf8();
}

/// The bytes with their references replaced and the carriage returns of their line ends left out; nullopt if
/// there is a reference or carriage return of another kind.
std::optional<QByteArray> withoutReferences(std::string_view text)
{
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r') {
            if (at + 1 == text.size() || text[at + 1] != '\n')
                return std::nullopt;
        } else if (text[at] == '&') {
            const std::size_t end = text.find(';', at);
            if (end == std::string_view::npos)
                return std::nullopt;
            const char32_t character = referencedCharacter(text.substr(at + 1, end - at - 1));
            if (character == U'\0')
                return std::nullopt;
            appendUtf8(bytes, character);
            at = end;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}

/// True for marks that git writes into a file that it could not merge, and for others; the other source looks
/// more closely.
bool hasConflictMark(std::string_view text)
{
    return text.find("<<<<<<<") != std::string_view::npos || text.find(">>>>>>>") != std::string_view::npos;
}

} // namespace

QString latin1(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

std::optional<QString> decoded(std::string_view text)
{
    if (text.find("]]>") != std::string_view::npos || hasConflictMark(text))
        return std::nullopt;
    const std::optional<QByteArray> bytes = withoutReferences(text);
    if (!bytes)
        return std::nullopt;
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    QString characters = decoder.decode(*bytes);
    if (decoder.hasError() || !isXmlText(characters))
        return std::nullopt;
    return characters;
}

bool isCommentText(std::string_view text)
{
    const auto isOdd = [](char byte) {
        return byte == '\r' || (byte & 0x80) != 0 || kindOf(byte) == Kind::Forbidden;
    };
    return std::ranges::none_of(text, isOdd) && !hasConflictMark(text);
}

} // namespace Clt::PlainXml
