#include "scanner/source_token.h"

#include "scanner/word_table.h"

#include <QString>

#include <array>
#include <utility>

namespace Scan {

namespace {

constexpr WordTable words(std::array<std::pair<std::string_view, TokenKind>, 19>{{
    {"ASK_QUESTION", TokenKind::AskQuestion},
    {"ASK_QUESTION_NOOP", TokenKind::AskQuestion},
    {"ASK_QUESTION_WITH_ARG", TokenKind::AskQuestionWithArg},
    {"ASK_QUESTION_WITH_ARGS", TokenKind::AskQuestionWithArgs},
    {"REPORT_ERROR", TokenKind::ReportError},
    {"REPORT_ERROR_NOOP", TokenKind::ReportError},
    {"REPORT_ERROR_WITH_ARG", TokenKind::ReportErrorWithArg},
    {"REPORT_ERROR_WITH_ARGS", TokenKind::ReportErrorWithArgs},
    {"REPORT_MESSAGE", TokenKind::ReportMessage},
    {"REPORT_MESSAGE_NOOP", TokenKind::ReportMessage},
    {"REPORT_MESSAGE_WITH_ARG", TokenKind::ReportMessageWithArg},
    {"REPORT_MESSAGE_WITH_ARGS", TokenKind::ReportMessageWithArgs},
    {"class", TokenKind::Other},
    {"enum", TokenKind::Other},
    {"for", TokenKind::Other},
    {"namespace", TokenKind::Namespace},
    {"struct", TokenKind::Other},
    {"using", TokenKind::Using},
    {"while", TokenKind::Other},
}});

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
    return words.find(word, TokenKind::Identifier);
}

} // namespace Scan
