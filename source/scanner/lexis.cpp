#include "scanner/lexis.h"

#include "scanner/wide_scan.h"

#include <algorithm>

namespace Scan::Lexis {

namespace {

std::size_t lineCommentEnd(std::string_view text, std::size_t from)
{
    for (std::size_t at = from;;) {
        at = Wide::findLineFeed(text, at);
        if (at == text.size())
            return at;
        const std::size_t carriageReturn = text[at - 1] == '\r' ? 1 : 0;
        if (text[at - 1 - carriageReturn] != '\\')
            return at;
        ++at;
    }
}

// Where the content of a literal in quotes ends.
struct QuotedEnd
{
    std::size_t end = 0;
    bool closed = false; // by a quote
};

QuotedEnd quotedEnd(std::string_view text, std::size_t quote)
{
    const char closing = text[quote];
    std::size_t at = quote + 1;
    while (at < text.size()) {
        const char byte = text[at];
        if (byte == closing)
            return {at, true};
        if (byte == '\n')
            return {at, false};
        if (byte == '\\')
            at += std::max<std::size_t>(continuationLength(text, at), 2);
        else
            ++at;
    }
    return {text.size(), false};
}

std::size_t suffixEnd(std::string_view text, std::size_t from)
{
    if (from < text.size() && hasClass(text[from], WordByte) && !hasClass(text[from], Digit))
        return wordEnd(text, from);
    return from;
}

bool isDelimiterByte(char byte)
{
    return byte != ')' && byte != '\\' && byte != '"' && !hasClass(byte, Blank);
}

// The length of the line continuation that ends at the position and begins after the floor; 0 if there is
// none.
std::size_t lengthOfContinuationBefore(std::string_view text, std::size_t end, std::size_t floor)
{
    for (const std::size_t length : {2U, 3U}) {
        if (end > floor + length && continuationLength(text, end - length) == length)
            return length;
    }
    return 0;
}

// The raw string whose opening quote is at the position; nullopt if its delimiter is invalid.
std::optional<Literal> rawLiteral(std::string_view text, std::size_t quote)
{
    constexpr std::size_t maximumDelimiter = 16;
    std::size_t open = quote + 1;
    while (open < text.size() && text[open] != '(' && isDelimiterByte(text[open]))
        ++open;
    if (open == text.size() || text[open] != '(' || open - quote - 1 > maximumDelimiter)
        return std::nullopt;

    const std::string_view delimiter = text.substr(quote + 1, open - quote - 1);
    Literal literal;
    literal.form = Literal::Form::Raw;
    for (std::size_t at = open + 1; (at = text.find(')', at)) != std::string_view::npos; ++at) {
        const std::size_t closing = at + 1 + delimiter.size();
        if (closing < text.size() && text[closing] == '"' &&
            text.substr(at + 1, delimiter.size()) == delimiter) {
            literal.content = text.substr(open + 1, at - open - 1);
            literal.end = suffixEnd(text, closing + 1);
            return literal;
        }
    }
    literal.content = text.substr(open + 1);
    literal.end = text.size();
    return literal;
}

} // namespace

std::size_t continuationLength(std::string_view text, std::size_t at)
{
    if (at + 1 >= text.size() || text[at] != '\\')
        return 0;
    if (text[at + 1] == '\n')
        return 2;
    return text[at + 1] == '\r' && at + 2 < text.size() && text[at + 2] == '\n' ? 3 : 0;
}

std::size_t wordEnd(std::string_view text, std::size_t begin)
{
    std::size_t at = begin;
    for (;;) {
        while (at < text.size() && hasClass(text[at], WordByte))
            ++at;
        std::size_t next = at;
        while (const std::size_t length = continuationLength(text, next))
            next += length;
        if (next == at || next >= text.size() || !hasClass(text[next], WordByte))
            return at;
        at = next;
    }
}

std::size_t wordBegin(std::string_view text, std::size_t end, std::size_t floor)
{
    std::size_t begin = end;
    for (;;) {
        while (begin > floor && hasClass(text[begin - 1], WordByte))
            --begin;
        std::size_t before = begin;
        while (const std::size_t length = lengthOfContinuationBefore(text, before, floor))
            before -= length;
        if (before == begin || !hasClass(text[before - 1], WordByte))
            return begin;
        begin = before;
    }
}

std::string spelling(std::string_view word)
{
    std::string spelled;
    spelled.reserve(word.size());
    for (std::size_t at = 0; at < word.size();) {
        if (const std::size_t length = continuationLength(word, at)) {
            at += length;
            continue;
        }
        spelled += word[at++];
    }
    return spelled;
}

std::size_t numberEnd(std::string_view text, std::size_t begin)
{
    std::size_t at = wordEnd(text, begin);
    while (at + 1 < text.size() && text[at] == '\'' && hasClass(text[at + 1], WordByte))
        at = wordEnd(text, at + 1);
    return at;
}

std::optional<std::size_t> commentEnd(std::string_view text, std::size_t begin)
{
    if (begin + 1 >= text.size() || text[begin] != '/')
        return std::nullopt;
    if (text[begin + 1] == '/')
        return lineCommentEnd(text, begin + 2);
    if (text[begin + 1] == '*')
        return Wide::findCommentEnd(text, begin + 2);
    return std::nullopt;
}

std::size_t skipBlanksAndComments(std::string_view text, std::size_t from)
{
    std::size_t at = from;
    for (;;) {
        while (at < text.size() && hasClass(text[at], Blank))
            ++at;
        if (at == text.size())
            return at;
        if (text[at] == '/') {
            const std::optional<std::size_t> end = commentEnd(text, at);
            if (!end)
                return at;
            at = *end;
        } else if (const std::size_t length = continuationLength(text, at)) {
            at += length;
        } else {
            return at;
        }
    }
}

std::size_t characterLiteralEnd(std::string_view text, std::size_t quote)
{
    const QuotedEnd end = quotedEnd(text, quote);
    return end.closed ? suffixEnd(text, end.end + 1) : end.end;
}

std::size_t singleQuoteEnd(std::string_view text, std::size_t quote, std::size_t floor)
{
    const std::size_t begin = wordBegin(text, quote, floor);
    // Without a word before the quote, this byte is the quote itself, which is not a digit.
    if (isDigit(text[begin])) {
        const std::size_t end = numberEnd(text, quote - 1);
        if (end > quote)
            return end;
    }
    return characterLiteralEnd(text, quote);
}

bool isLiteralPrefix(std::string_view word)
{
    static constexpr std::string_view prefixes[] = {"R", "L", "u", "U", "u8", "LR", "uR", "UR", "u8R"};
    return std::ranges::find(prefixes, word) != std::end(prefixes);
}

Literal literalAt(std::string_view text, std::string_view prefix, std::size_t quote)
{
    const bool prefixed = isLiteralPrefix(prefix);
    Literal literal;
    if (prefixed && prefix.ends_with('R'))
        literal = rawLiteral(text, quote).value_or(Literal());
    if (literal.form == Literal::Form::Ordinary) {
        const QuotedEnd end = quotedEnd(text, quote);
        literal.content = text.substr(quote + 1, end.end - quote - 1);
        literal.end = end.closed ? suffixEnd(text, end.end + 1) : end.end;
    }
    const bool wide = prefixed && !prefix.starts_with('R') && !prefix.starts_with("u8");
    literal.units = wide ? Literal::Units::Wide : Literal::Units::Bytes;
    return literal;
}

std::optional<std::size_t> literalQuote(std::string_view text, std::size_t begin)
{
    constexpr std::size_t maximumPrefix = 3;
    const std::size_t limit = std::min(text.size(), begin + maximumPrefix);
    std::size_t quote = begin;
    while (quote < limit && hasClass(text[quote], WordByte))
        ++quote;
    if (quote == text.size() || text[quote] != '"')
        return std::nullopt;
    if (quote != begin && !isLiteralPrefix(text.substr(begin, quote - begin)))
        return std::nullopt;
    return quote;
}

bool beginsLine(std::string_view text, std::size_t at)
{
    while (at > 0 && hasClass(text[at - 1], Blank) && text[at - 1] != '\n')
        --at;
    return at == 0 || text[at - 1] == '\n' || (at > 1 && text[at - 1] == '/' && text[at - 2] == '*');
}

std::size_t directiveEnd(std::string_view text, std::size_t from)
{
    std::size_t floor = from;
    for (std::size_t at = from; at < text.size();) {
        const char byte = text[at];
        if (byte == '\n')
            return at;
        if (byte == '/') {
            at = commentEnd(text, at).value_or(at + 1);
        } else if (byte == '"') {
            const std::size_t begin = wordBegin(text, at, floor);
            at = floor = literalAt(text, text.substr(begin, at - begin), at).end;
        } else if (byte == '\'') {
            at = floor = singleQuoteEnd(text, at, floor);
        } else if (byte == '\\') {
            at += std::max<std::size_t>(continuationLength(text, at), 1);
        } else {
            ++at;
        }
    }
    return text.size();
}

} // namespace Scan::Lexis
