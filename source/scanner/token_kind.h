#pragma once

#include <cstdint>
#include <string_view>

class QString;

namespace Scan {

/// The kinds of tokens in a C++ source file.
enum class TokenKind : std::uint8_t
{
    Other = 0, ///< any token of no interest, and the keywords class, enum, for, struct and while
    EndOfFile = 1,
    Namespace = 2,
    Using = 3,
    ReportError = 4, ///< also with the suffix _NOOP, like kinds 7 and 10
    ReportErrorWithArg = 5,
    ReportErrorWithArgs = 6,
    ReportMessage = 7,
    ReportMessageWithArg = 8,
    ReportMessageWithArgs = 9,
    AskQuestion = 10,
    AskQuestionWithArg = 11,
    AskQuestionWithArgs = 12,
    Identifier = 13,
    String = 14,
    LeftBrace = 15,
    RightBrace = 16,
    LeftParen = 17,
    RightParen = 18,
    Semicolon = 19,
    Colon = 20,
    DoubleColon = 21
};

/// The kind's name in diagnostics; "UNKNOWN" for kinds 7 to 12, which have none.
QString displayName(TokenKind kind);

/// The kind of a word (letters, digits, underscores). The comparison is case-sensitive. A word that is not
/// listed is an Identifier.
TokenKind classifyWord(std::string_view word);

/// True for kinds 4 to 12.
constexpr bool isMacro(TokenKind kind)
{
    return kind >= TokenKind::ReportError && kind <= TokenKind::AskQuestionWithArgs;
}

} // namespace Scan
