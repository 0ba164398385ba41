#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The lexical rules of C++ that the scanner needs, as functions of a text and a position in it. Positions
/// answered lie within the text or at its end; something left open at the end of the text ends there.
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

/// The length of the line continuation (a backslash and a line end) at the position; 0 when there is none.
std::size_t continuationLength(std::string_view text, std::size_t at);

/// The end of the word that begins at the position. A line continuation within a word belongs to it.
std::size_t wordEnd(std::string_view text, std::size_t begin);

/// True when there is a line continuation within the word.
inline bool isBroken(std::string_view word)
{
    return std::find(word.begin(), word.end(), '\\') != word.end();
}

/// The beginning of the word that ends at the position; floor is the least answer.
std::size_t wordBegin(std::string_view text, std::size_t end, std::size_t floor);

/// A word's text without its line continuations.
std::string spelling(std::string_view word);

/// The end of the number (digits, letters, digit separators; not the decimal point) that begins at the
/// position.
std::size_t numberEnd(std::string_view text, std::size_t begin);

/// The first position at or after from that is neither white space nor inside a comment or line
/// continuation.
std::size_t skipBlanksAndComments(std::string_view text, std::size_t from);

/// The end of the comment that begins at the position; nothing when none does. The line feed behind a
/// comment of one line is not part of it.
std::optional<std::size_t> commentEnd(std::string_view text, std::size_t begin);

/// The end of the character literal whose quote is at the position, with its suffix. One that is not closed
/// ends with its line.
std::size_t characterLiteralEnd(std::string_view text, std::size_t quote);

/// The end of what the single quote at the position belongs to: the number that it separates digits of, or a
/// character literal. The word before it is looked for down to floor.
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
    std::string_view content; ///< between the quotes or parentheses, as it stands
    std::size_t end = 0;      ///< behind the closing quote and the suffix
};

/// The string literal whose opening quote is at the position, with that prefix before it ("", "u8R", ...); a
/// word that is no prefix counts as "". One that is not closed ends with its line, a raw one with the text.
Literal literalAt(std::string_view text, std::string_view prefix, std::size_t quote);

/// The position of the opening quote when a string literal, with its prefix if any, begins at the position.
std::optional<std::size_t> literalQuote(std::string_view text, std::size_t begin);

/// True when the word is the prefix of a string literal.
bool isLiteralPrefix(std::string_view word);

/// True when nothing but blanks or a comment stands before the position on its line, so that a "#" there
/// begins a preprocessor directive.
bool beginsLine(std::string_view text, std::size_t at);

/// The end of the directive whose text goes on at the position: the line feed that no continuation, comment
/// or raw string takes in.
std::size_t directiveEnd(std::string_view text, std::size_t from);

} // namespace Scan::Lexis
