#include "scanner/string_literal.h"

#include "scanner/lexis.h"
#include "scanner/source_text.h"

#include <QByteArray>
#include <QChar>
#include <QString>

#include <algorithm>
#include <optional>

namespace Scan {

namespace {

// Collects a literal's text from bytes and code units. Consecutive bytes are decoded together, because
// several escape sequences may write one character.
class LiteralText
{
public:
    void appendBytes(std::string_view bytes)
    {
        m_bytes.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

    void appendByte(char byte) { m_bytes.append(byte); }

    void appendUnit(char32_t unit)
    {
        flush();
        if (unit <= 0xFFFF)
            m_text.append(QChar(static_cast<char16_t>(unit)));
        else if (unit <= QChar::LastValidCodePoint)
            m_text.append(QStringView(QChar::fromUcs4(unit)));
        else
            m_text.append(QChar(QChar::ReplacementCharacter));
    }

    QString take()
    {
        flush();
        return m_text;
    }

private:
    void flush()
    {
        if (m_bytes.isEmpty())
            return;
        m_text += decodeEightBit(m_bytes);
        m_bytes.clear();
    }

    QString m_text;
    QByteArray m_bytes;
};

int digitValue(char byte)
{
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

// The digits of a base from a position on, and their value, which is the maximum if it overflows.
struct Digits
{
    char32_t value = 0;
    std::size_t end = 0;
};

Digits readDigits(std::string_view content, std::size_t from, std::size_t maximum, int base)
{
    constexpr char32_t maximumValue = 0x7FFFFFFF;
    Digits digits{0, from};
    while (digits.end < content.size() && digits.end - from < maximum &&
           digitValue(content[digits.end]) < base) {
        const auto value = static_cast<char32_t>(digitValue(content[digits.end]));
        const bool fits = digits.value <= maximumValue >> 4;
        digits.value = fits ? digits.value * static_cast<char32_t>(base) + value : maximumValue;
        ++digits.end;
    }
    return digits;
}

std::optional<char> simpleEscape(char letter)
{
    static constexpr std::string_view letters = "abfnrtv";
    static constexpr std::string_view values = "\a\b\f\n\r\t\v";
    const std::size_t found = letters.find(letter);
    return found == std::string_view::npos ? std::nullopt : std::optional(values[found]);
}

// A literal that is not raw.
class EscapedContent
{
public:
    EscapedContent(const Lexis::Literal &literal, LiteralText &text)
        : m_content(literal.content)
        , m_units(literal.units)
        , m_text(text)
    {
    }

    void decode()
    {
        while (m_at < m_content.size()) {
            const std::size_t backslash = std::min(m_content.find('\\', m_at), m_content.size());
            m_text.appendBytes(m_content.substr(m_at, backslash - m_at));
            m_at = backslash;
            if (m_at < m_content.size())
                decodeEscape();
        }
    }

private:
    void decodeEscape()
    {
        if (const std::size_t length = Lexis::continuationLength(m_content, m_at)) {
            m_at += length;
            return;
        }
        const std::size_t letter = m_at + 1;
        if (letter == m_content.size()) {
            m_at = letter;
            return;
        }
        switch (m_content[letter]) {
        case 'x':
            return decodeNumber(letter + 1, m_content.size(), 16);
        case 'o':
            return decodeNumber(letter + 1, 0, 8);
        case 'u':
            return decodeCharacter(letter + 1, 4);
        case 'U':
            return decodeCharacter(letter + 1, 8);
        default:
            if (digitValue(m_content[letter]) < 8)
                return decodeNumber(letter, 3, 8);
            m_text.appendByte(simpleEscape(m_content[letter]).value_or(m_content[letter]));
            m_at = letter + 1;
        }
    }

    // The number after the escape's letter: any number of digits in braces, or at most this number without.
    Digits number(std::size_t from, std::size_t maximum, int base) const
    {
        if (from < m_content.size() && m_content[from] == '{') {
            Digits digits = readDigits(m_content, from + 1, m_content.size(), base);
            if (digits.end > from + 1 && digits.end < m_content.size() && m_content[digits.end] == '}') {
                ++digits.end;
                return digits;
            }
        }
        return readDigits(m_content, from, maximum, base);
    }

    // The number of a byte or code unit. An escape without digits is its letter.
    void decodeNumber(std::size_t from, std::size_t maximum, int base)
    {
        const Digits digits = number(from, maximum, base);
        m_at = digits.end;
        if (digits.end == from)
            m_text.appendByte(m_content[from - 1]);
        else if (m_units == Lexis::Literal::Units::Bytes)
            m_text.appendByte(static_cast<char>(digits.value & 0xFF));
        else
            m_text.appendUnit(digits.value);
    }

    // The number of a Unicode character.
    void decodeCharacter(std::size_t from, std::size_t maximum)
    {
        const Digits digits = number(from, maximum, 16);
        m_at = digits.end;
        if (digits.end == from)
            m_text.appendByte(m_content[from - 1]);
        else
            m_text.appendUnit(digits.value);
    }

    std::string_view m_content;
    Lexis::Literal::Units m_units;
    LiteralText &m_text;
    std::size_t m_at = 0;
};

void decodeRaw(std::string_view content, LiteralText &text)
{
    std::size_t at = 0;
    while (at < content.size()) {
        const std::size_t lineEnd = std::min(content.find("\r\n", at), content.size());
        text.appendBytes(content.substr(at, lineEnd - at));
        at = lineEnd + 1;
    }
}

} // namespace

QString decodeLiterals(std::string_view source)
{
    LiteralText text;
    std::size_t at = 0;
    while (const std::optional<std::size_t> quote = Lexis::literalQuote(source, at)) {
        const Lexis::Literal literal = Lexis::literalAt(source, source.substr(at, *quote - at), *quote);
        if (literal.form == Lexis::Literal::Form::Raw)
            decodeRaw(literal.content, text);
        else
            EscapedContent(literal, text).decode();
        at = Lexis::skipBlanksAndComments(source, literal.end);
    }
    return text.take();
}

} // namespace Scan
