#pragma once

#include "scanner/macro_finder.h"
#include "scanner/token_kind.h"

#include <cstddef>
#include <string>
#include <string_view>

class QString;

namespace Scan {

/// The effect of a preprocessor directive on the text after it.
enum class Directive : std::uint8_t
{
    None,  ///< not a conditional; such directives are not tokens
    If,    ///< #if, #ifdef, #ifndef
    Else,  ///< #elif, #elifdef, #elifndef, #else
    EndIf, ///< #endif
};

/// Splits a C++ source text into tokens. Comments, line continuations and preprocessor directives are
/// skipped, except that a conditional directive is a token of kind Other. Adjacent string literals are one
/// String token. Every sequence of bytes can be split into tokens.
class Tokenizer
{
public:
    /// The text is UTF-8 without a byte order mark, and must outlive the tokenizer.
    explicit Tokenizer(std::string_view text);

    /// Moves to the next token, initially to the first.
    void next();

    /// Moves to the next token that matters in a function's body outside of a macro call: a brace, a macro
    /// name, a conditional directive or the end. Skipped string literals become the last string.
    void nextInBody();

    TokenKind kind() const { return m_kind; }

    Directive directive() const { return m_directive; }

    /// The token as written; for a String all its literals, with the text between them.
    std::string_view text() const { return m_text.substr(m_begin, m_end - m_begin); }
    std::size_t begin() const { return m_begin; }
    std::size_t end() const { return m_end; }

    /// The part of the text between two positions.
    std::string_view between(std::size_t begin, std::size_t end) const
    {
        return m_text.substr(begin, end - begin);
    }

    /// True when the token immediately follows this byte.
    bool follows(char byte) const { return m_begin > 0 && m_text[m_begin - 1] == byte; }

    /// The last Identifier that next() found, as written; empty before the first.
    std::string_view identifier() const { return m_identifier; }

    /// The last string literal with its adjacent ones, as written; empty before the first.
    std::string_view literals() const { return m_literals; }

    /// The text of these literals, with escape sequences decoded.
    QString string() const;

    /// The number, from 1, of the line on which the token begins. Cheap for increasing positions.
    int line() { return lineOf(m_begin); }

    /// False when there is no macro name after the token.
    bool macroAhead() { return isMacro(m_macros.next(m_end).kind); }

private:
    int lineOf(std::size_t position);
    void take(TokenKind kind, std::size_t begin, std::size_t end);
    void takeWord(std::size_t begin);
    void takeLiterals(std::size_t begin);
    bool takeDirective(std::size_t numberSign);
    bool takePunctuation(std::size_t begin);
    bool takeInBody(std::size_t at, std::size_t segment);
    std::size_t literalsEnd(std::size_t begin, std::size_t quote);

    std::string_view m_text;
    MacroFinder m_macros;
    TokenKind m_kind = TokenKind::Other;
    Directive m_directive = Directive::None;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_position = 0; ///< where the search for the next token starts
    std::string_view m_identifier;
    std::string_view m_literals;
    std::size_t m_countedTo = 0; ///< line feeds before this are counted
    int m_line = 1;
};

/// The tokens of a part of a source text, joined, with a blank only between two words.
std::string joinTokens(std::string_view source);

} // namespace Scan
