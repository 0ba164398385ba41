#include "scanner/lexis.h"
#include "scanner/tokenizer.h"

#include <QString>

#include <cstdlib>

// Any bytes give tokens with increasing positions up to the end; words have the kind of their spelling; and
// reading as in a body finds the same braces, macro names, conditionals and strings as reading every token.

using namespace Scan;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

bool mattersInBody(const Tokenizer &token)
{
    return token.kind() == TokenKind::LeftBrace || token.kind() == TokenKind::RightBrace ||
           isMacro(token.kind()) || token.directive() != Directive::None ||
           token.kind() == TokenKind::EndOfFile;
}

void checkToken(Tokenizer &token, std::string_view text, std::size_t previousEnd)
{
    require(token.begin() >= previousEnd && token.end() <= text.size());
    require(token.kind() == TokenKind::EndOfFile || token.end() > token.begin());
    const std::string_view word = token.text();
    const bool isWord = !word.empty() && Lexis::isWordByte(word.front()) && !Lexis::isDigit(word.front());
    if (isWord && token.kind() != TokenKind::String)
        require(classifyWord(Lexis::spelling(word)) == token.kind());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(bytes), size);
    Tokenizer every(text);
    Tokenizer body(text);
    std::size_t end = 0;
    int line = 1;
    do {
        every.next();
        checkToken(every, text, end);
        end = every.end();
        require(every.line() >= line);
        line = every.line();
        if (!mattersInBody(every))
            continue;
        body.nextInBody();
        require(body.kind() == every.kind() && body.directive() == every.directive());
        require(body.begin() == every.begin() && body.end() == every.end());
        require(body.literals() == every.literals() && body.string() == every.string());
    } while (every.kind() != TokenKind::EndOfFile);
    joinTokens(text);
    return 0;
}
