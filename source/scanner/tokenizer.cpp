#include "scanner/tokenizer.h"

#include "scanner/lexis.h"
#include "scanner/string_literal.h"
#include "scanner/wide_scan.h"

#include <QString>

namespace Scan {

namespace {

Directive directiveOf(std::string_view word)
{
    if (word.starts_with("if"))
        return Directive::If;
    if (word.starts_with("el"))
        return Directive::Else;
    return word == "endif" ? Directive::EndIf : Directive::None;
}

} // namespace

Tokenizer::Tokenizer(std::string_view text)
    : m_text(text)
    , m_macros(text)
{
}

void Tokenizer::next()
{
    for (;;) {
        const std::size_t at = Lexis::skipBlanksAndComments(m_text, m_position);
        if (at == m_text.size())
            return take(TokenKind::EndOfFile, at, at);
        if (Lexis::isDigit(m_text[at]))
            return take(TokenKind::Other, at, Lexis::numberEnd(m_text, at));
        if (Lexis::isWordByte(m_text[at]))
            return takeWord(at);
        if (takePunctuation(at))
            return;
    }
}

void Tokenizer::nextInBody()
{
    std::size_t segment = m_position;
    for (;;) {
        const MacroFinder::Macro &macro = m_macros.next(segment);
        const std::size_t at = Wide::findBodyByte(m_text, m_position, macro.begin);
        if (at == m_text.size())
            return take(TokenKind::EndOfFile, at, at);
        if (at == macro.begin)
            return take(macro.kind, macro.begin, macro.end);
        if (takeInBody(at, segment))
            return;
        segment = m_position;
    }
}

// True when the byte begins a token; otherwise skips the text to which it belongs.
bool Tokenizer::takeInBody(std::size_t at, std::size_t segment)
{
    switch (m_text[at]) {
    case '{':
        take(TokenKind::LeftBrace, at, at + 1);
        return true;
    case '}':
        take(TokenKind::RightBrace, at, at + 1);
        return true;
    case '"': {
        const std::size_t word = Lexis::wordBegin(m_text, at, segment);
        const bool prefixed = Lexis::isLiteralPrefix(m_text.substr(word, at - word));
        literalsEnd(prefixed ? word : at, at);
        return false;
    }
    case '\'':
        m_position = Lexis::singleQuoteEnd(m_text, at, segment);
        return false;
    case '/':
        m_position = Lexis::commentEnd(m_text, at).value_or(at + 1);
        return false;
    default:
        return takeDirective(at);
    }
}

void Tokenizer::take(TokenKind kind, std::size_t begin, std::size_t end)
{
    m_kind = kind;
    m_directive = Directive::None;
    m_begin = begin;
    m_end = end;
    m_position = end;
}

void Tokenizer::takeWord(std::size_t begin)
{
    const std::size_t end = Lexis::wordEnd(m_text, begin);
    const std::string_view word = m_text.substr(begin, end - begin);
    if (end < m_text.size() && m_text[end] == '"' && Lexis::isLiteralPrefix(word))
        return takeLiterals(begin);

    const MacroFinder::Macro &macro = m_macros.next(begin);
    if (macro.begin == begin)
        return take(macro.kind, begin, end);
    take(Lexis::isBroken(word) ? classifyWord(Lexis::spelling(word)) : classifyWord(word), begin, end);
    if (m_kind == TokenKind::Identifier)
        m_identifier = word;
}

void Tokenizer::takeLiterals(std::size_t begin)
{
    std::size_t quote = begin;
    while (m_text[quote] != '"')
        ++quote;
    take(TokenKind::String, begin, literalsEnd(begin, quote));
}

// Makes the literal and those adjacent to it the last string, and skips them and the blanks after them.
// Returns the end of the last literal.
std::size_t Tokenizer::literalsEnd(std::size_t begin, std::size_t quote)
{
    std::size_t prefix = begin;
    for (;;) {
        const std::size_t end = Lexis::literalAt(m_text, m_text.substr(prefix, quote - prefix), quote).end;
        m_position = Lexis::skipBlanksAndComments(m_text, end);
        const std::optional<std::size_t> following = Lexis::literalQuote(m_text, m_position);
        if (!following) {
            m_literals = m_text.substr(begin, end - begin);
            return end;
        }
        prefix = m_position;
        quote = *following;
    }
}

// True when the directive is a conditional, which is a token; otherwise skips it.
bool Tokenizer::takeDirective(std::size_t numberSign)
{
    std::size_t begin = numberSign + 1;
    if (!Lexis::beginsLine(m_text, numberSign)) {
        m_position = begin;
        return false;
    }
    while (begin < m_text.size() && (m_text[begin] == ' ' || m_text[begin] == '\t'))
        ++begin;
    const std::size_t end = Lexis::wordEnd(m_text, begin);
    const Directive directive = directiveOf(m_text.substr(begin, end - begin));
    const std::size_t lineEnd = Lexis::directiveEnd(m_text, end);
    take(TokenKind::Other, numberSign, lineEnd);
    m_directive = directive;
    return directive != Directive::None;
}

// True when the byte begins a token; otherwise skips the directive that it begins.
bool Tokenizer::takePunctuation(std::size_t begin)
{
    const char following = begin + 1 < m_text.size() ? m_text[begin + 1] : '\0';
    TokenKind kind = TokenKind::Other;
    std::size_t end = begin + 1;
    switch (m_text[begin]) {
    case '{':
        kind = TokenKind::LeftBrace;
        break;
    case '}':
        kind = TokenKind::RightBrace;
        break;
    case '(':
        kind = TokenKind::LeftParen;
        break;
    case ')':
        kind = TokenKind::RightParen;
        break;
    case ';':
        kind = TokenKind::Semicolon;
        break;
    case ':':
        kind = following == ':' ? TokenKind::DoubleColon : TokenKind::Colon;
        end += following == ':' ? 1 : 0;
        break;
    case '"':
        takeLiterals(begin);
        return true;
    case '\'':
        end = Lexis::characterLiteralEnd(m_text, begin);
        break;
    case '#':
        return takeDirective(begin);
    case '-':
        end += following == '>' ? 1 : 0;
        break;
    default:
        break;
    }
    take(kind, begin, end);
    return true;
}

QString Tokenizer::string() const
{
    return decodeLiterals(m_literals);
}

int Tokenizer::lineOf(std::size_t position)
{
    m_line += static_cast<int>(Wide::countLineFeeds(m_text.substr(m_countedTo, position - m_countedTo)));
    m_countedTo = position;
    return m_line;
}

std::string joinTokens(std::string_view source)
{
    std::string joined;
    Tokenizer tokenizer(source);
    for (tokenizer.next(); tokenizer.kind() != TokenKind::EndOfFile; tokenizer.next()) {
        if (tokenizer.directive() != Directive::None)
            continue;
        const std::string token = tokenizer.kind() == TokenKind::String ? std::string(tokenizer.text())
                                                                        : Lexis::spelling(tokenizer.text());
        if (!joined.empty() && !token.empty() && Lexis::isWordByte(joined.back()) &&
            Lexis::isWordByte(token.front()))
            joined += ' ';
        joined += token;
    }
    return joined;
}

} // namespace Scan
