#pragma once

#include "scanner/macro_finder.h"
#include "scanner/source_token.h"

#include <cstddef>
#include <string>
#include <string_view>

class QString;

namespace Scan {

/// What a preprocessor directive does to the text that follows.
enum class Directive : std::uint8_t
{
    None,  ///< no conditional; such directives give no token
    If,    ///< #if, #ifdef, #ifndef
    Else,  ///< #elif, #elifdef, #elifndef, #else
    EndIf, ///< #endif
};

/// Takes the tokens of a C++ source text one by one. Comments, line continuations and preprocessor directives
/// are passed over, except that a conditional directive gives a token of kind Other. Adjacent string literals
/// are one String token. Any bytes at all give tokens up to the end of the text.
class Tokenizer
{
public:
    /// The text, UTF-8 without a byte order mark, stays where it is while the tokenizer lives.
    explicit Tokenizer(std::string_view text);

    /// Goes to the next token; before the first call there is none.
    void next();

    /// Goes to the next token that can matter in a function's body away from a macro call: a brace, a macro
    /// name, a conditional directive or the end. String literals passed over become the last string.
    void nextInBody();

    TokenKind kind() const { return m_kind; }

    Directive directive() const { return m_directive; }

    /// The token as it stands in the text; all its literals, and what is between them, for a String.
    std::string_view text() const { return m_text.substr(m_begin, m_end - m_begin); }
    std::size_t begin() const { return m_begin; }
    std::size_t end() const { return m_end; }

    /// The piece of the text between two positions.
    std::string_view between(std::size_t begin, std::size_t end) const
    {
        return m_text.substr(begin, end - begin);
    }

    /// The last word of kind Identifier that next() gave, as it stands; empty before the first.
    std::string_view identifier() const { return m_identifier; }

    /// The last string literal, as it stands with its adjacent ones; empty before the first.
    std::string_view literals() const { return m_literals; }

    /// Its text, with escape sequences decoded.
    QString string() const;

    /// The line, counted from 1, on which the token begins. Cheap for rising positions.
    int line() { return lineOf(m_begin); }

    /// False when no macro name is left in the text behind the token.
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
    std::size_t m_position = 0; ///< where to go on
    std::string_view m_identifier;
    std::string_view m_literals;
    std::size_t m_countedTo = 0; ///< line feeds before this are counted
    int m_line = 1;
};

/// The text of the tokens of a piece of source, put together with a blank between two words only.
std::string joinTokens(std::string_view source);

} // namespace Scan
