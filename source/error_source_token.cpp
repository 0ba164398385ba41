#include "error_source_token.h"

#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace Scan {

namespace {

using Word = std::pair<std::string_view, TokenKind>;

constexpr std::array<Word, 12> macros = {{
    {"REPORT_ERROR", TokenKind::ReportError},
    {"REPORT_ERROR_NOOP", TokenKind::ReportError},
    {"REPORT_ERROR_WITH_ARG", TokenKind::ReportErrorWithArg},
    {"REPORT_ERROR_WITH_ARGS", TokenKind::ReportErrorWithArgs},
    {"REPORT_MESSAGE", TokenKind::ReportMessage},
    {"REPORT_MESSAGE_NOOP", TokenKind::ReportMessage},
    {"REPORT_MESSAGE_WITH_ARG", TokenKind::ReportMessageWithArg},
    {"REPORT_MESSAGE_WITH_ARGS", TokenKind::ReportMessageWithArgs},
    {"ASK_QUESTION", TokenKind::AskQuestion},
    {"ASK_QUESTION_NOOP", TokenKind::AskQuestion},
    {"ASK_QUESTION_WITH_ARG", TokenKind::AskQuestionWithArg},
    {"ASK_QUESTION_WITH_ARGS", TokenKind::AskQuestionWithArgs},
}};

constexpr std::array<Word, 7> keywords = {{
    {"namespace", TokenKind::Namespace},
    {"using", TokenKind::Using},
    {"class", TokenKind::Other},
    {"enum", TokenKind::Other},
    {"for", TokenKind::Other},
    {"struct", TokenKind::Other},
    {"while", TokenKind::Other},
}};

template<std::size_t Size>
TokenKind find(const std::array<Word, Size> &words, std::string_view word)
{
    const auto *const found =
        std::find_if(words.begin(), words.end(), [word](const Word &entry) { return entry.first == word; });
    return found == words.end() ? TokenKind::Identifier : found->second;
}

} // namespace

QString displayName(TokenKind kind)
{
    switch (kind) {
    case TokenKind::Other:
        return QStringLiteral("Other");
    case TokenKind::EndOfFile:
        return QStringLiteral("EOF");
    case TokenKind::Namespace:
        return QStringLiteral("namespace");
    case TokenKind::Using:
        return QStringLiteral("using");
    case TokenKind::ReportError:
        return QStringLiteral("ReportError");
    case TokenKind::ReportErrorWithArg:
        return QStringLiteral("ReportErrorWithArg");
    case TokenKind::ReportErrorWithArgs:
        return QStringLiteral("ReportErrorWithArgs");
    case TokenKind::Identifier:
        return QStringLiteral("Identifier");
    case TokenKind::String:
        return QStringLiteral("String");
    case TokenKind::LeftBrace:
        return QStringLiteral("LeftBrace");
    case TokenKind::RightBrace:
        return QStringLiteral("RightBrace");
    case TokenKind::LeftParen:
        return QStringLiteral("LeftParen");
    case TokenKind::RightParen:
        return QStringLiteral("RightParen");
    case TokenKind::Semicolon:
        return QStringLiteral("Semicolon");
    case TokenKind::Colon:
        return QStringLiteral("Colon");
    case TokenKind::DoubleColon:
        return QStringLiteral("DoubleColon");
    default:
        return QStringLiteral("UNKNOWN");
    }
}

TokenKind classifyWord(std::string_view word)
{
    if (word.empty())
        return TokenKind::Identifier;
    switch (word.front()) {
    case 'A':
    case 'R':
        return find(macros, word);
    case 'c':
    case 'e':
    case 'f':
    case 'n':
    case 's':
    case 'u':
    case 'w':
        return find(keywords, word);
    default:
        return TokenKind::Identifier;
    }
}

} // namespace Scan
