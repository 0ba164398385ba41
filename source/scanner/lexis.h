#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The lexical rules of C++ that the scanner needs, as functions of a text and a position in it. They return
/// positions up to the text's size; a literal or comment that is still open at the end of the text ends
/// there.
namespace Scan::Lexis {

enum ByteClass : unsigned char
{
    WordByte = 1,
    Digit = 2,
    Blank = 4
};

constexpr std::array<unsigned char, 256> makeByteClasses()
{
    std::array<unsigned char, 256> classes = {};
    for (std::size_t byte = 0; byte < classes.size(); ++byte) {
        const bool digit = byte >= '0' && byte <= '9';
        const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        if (digit)
            classes[byte] = WordByte | Digit;
        else if (letter || byte == '_' || byte == '$' || byte >= 0x80)
            classes[byte] = WordByte;
        else if (byte == ' ' || (byte >= '\t' && byte <= '\r'))
            classes[byte] = Blank;
    }
    return classes;
}

inline constexpr std::array<unsigned char, 256> byteClasses = makeByteClasses();

constexpr bool hasClass(char byte, ByteClass wanted)
{
    return (byteClasses[static_cast<unsigned char>(byte)] & wanted) != 0;
}

/// A letter, a digit, "_", "$", or a byte of a character beyond ASCII.
constexpr bool isWordByte(char byte)
{
    return hasClass(byte, WordByte);
}

constexpr bool isDigit(char byte)
{
    return hasClass(byte, Digit);
}

/// The length of the line continuation (a backslash and a line end) at the position; 0 if there is none.
std::size_t continuationLength(std::string_view text, std::size_t at);

/// The end of the word that begins at the position. A word may contain line continuations.
std::size_t wordEnd(std::string_view text, std::size_t begin);

/// True when the word contains a line continuation.
inline bool isBroken(std::string_view word)
{
    return word.find('\\') != std::string_view::npos;
}

/// The beginning of the word that ends at the position. Never returns less than floor.
std::size_t wordBegin(std::string_view text, std::size_t end, std::size_t floor);

/// A word's text without its line continuations.
std::string spelling(std::string_view word);

/// The end of the number (digits, letters, digit separators; not the decimal point) that begins at the
/// position.
std::size_t numberEnd(std::string_view text, std::size_t begin);

/// The first position at or after from that is neither white space nor inside a comment or line
/// continuation.
std::size_t skipBlanksAndComments(std::string_view text, std::size_t from);

/// The end of the comment that begins at the position; nullopt if there is none. The line feed after a
/// one-line comment is not part of it.
std::optional<std::size_t> commentEnd(std::string_view text, std::size_t begin);

/// The end of the character literal, with its suffix, whose quote is at the position. An unclosed literal
/// ends with its line.
std::size_t characterLiteralEnd(std::string_view text, std::size_t quote);

/// The end of the token that contains the single quote at the position: a number whose digits it separates,
/// or a character literal. The word before the quote begins at floor or later.
std::size_t singleQuoteEnd(std::string_view text, std::size_t quote, std::size_t floor);

/// A string literal in the text.
struct Literal
{
    enum class Form
    {
        Ordinary,
        Raw
    };
    enum class Units
    {
        Bytes, ///< no prefix or u8: numbers in escape sequences are bytes
        Wide   ///< L, u or U: they are UTF-16 or UTF-32 code units
    };

    Form form = Form::Ordinary;
    Units units = Units::Bytes;
    std::string_view content; ///< between the quotes or parentheses, as written
    std::size_t end = 0;      ///< after the closing quote and the suffix
};

/// The string literal whose opening quote is at the position, with this prefix ("", "u8R", ...); any other
/// word counts as "". An unclosed literal ends with its line, an unclosed raw one with the text.
Literal literalAt(std::string_view text, std::string_view prefix, std::size_t quote);

/// The position of the opening quote of the string literal, with or without a prefix, that begins at the
/// position; nullopt if there is none.
std::optional<std::size_t> literalQuote(std::string_view text, std::size_t begin);

/// True when the word is the prefix of a string literal.
bool isLiteralPrefix(std::string_view word);

/// True when there are only blanks or a comment before the position on its line, so that a "#" there begins a
/// preprocessor directive.
bool beginsLine(std::string_view text, std::size_t at);

/// The end of the directive that contains the position: the first line feed outside of continuations,
/// comments and raw strings.
std::size_t directiveEnd(std::string_view text, std::size_t from);

} // namespace Scan::Lexis
