#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

/// The bytes of a document that PlainXmlSource reads.
namespace Clt::PlainXml {

/// What a byte means within a text.
enum class Kind : unsigned char
{
    Plain, ///< itself
    Markup,
    Special, ///< a reference, a carriage return, the end of a CDATA section or a byte of a longer character
    Forbidden
};

constexpr std::array<Kind, 256> kindsOfBytes()
{
    std::array<Kind, 256> kinds{};
    for (std::size_t byte = 0; byte < ' '; ++byte)
        kinds[byte] = Kind::Forbidden;
    for (const char byte : {'\t', '\n'})
        kinds[static_cast<unsigned char>(byte)] = Kind::Plain;
    for (const char byte : {'&', '\r', '>'})
        kinds[static_cast<unsigned char>(byte)] = Kind::Special;
    kinds['<'] = Kind::Markup;
    for (std::size_t byte = 0x80; byte < kinds.size(); ++byte)
        kinds[byte] = Kind::Special;
    return kinds;
}

inline constexpr std::array<Kind, 256> kinds = kindsOfBytes();

inline Kind kindOf(char byte)
{
    return kinds[static_cast<unsigned char>(byte)];
}

// Without the carriage return, which a device in text mode leaves out, even within a tag.
inline bool isSpace(char byte)
{
    return byte == ' ' || byte == '\n' || byte == '\t';
}

inline bool isNameBegin(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_';
}

inline bool isNameByte(char byte)
{
    return isNameBegin(byte) || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.';
}

inline const char *skipName(const char *at, const char *end)
{
    if (at == end || !isNameBegin(*at))
        return at;
    while (at != end && isNameByte(*at))
        ++at;
    return at;
}

inline const char *skipSpace(const char *at, const char *end)
{
    while (at != end && isSpace(*at))
        ++at;
    return at;
}

/// The characters of text in which every byte is plain.
QString latin1(std::string_view text);

/// The characters of a text with bytes that are not plain; nullopt if it is not well formed, has a carriage
/// return that does not end a line, or may have marks of a merge.
std::optional<QString> decoded(std::string_view text);

/// True if a comment with this text can be skipped.
bool isCommentText(std::string_view text);

} // namespace Clt::PlainXml
