#include "scanner/token_kind.h"

#include "scanner/word_table.h"

#include <QString>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

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
        return u"Other"_s;
    case TokenKind::EndOfFile:
        return u"EOF"_s;
    case TokenKind::Namespace:
        return u"namespace"_s;
    case TokenKind::Using:
        return u"using"_s;
    case TokenKind::ReportError:
        return u"ReportError"_s;
    case TokenKind::ReportErrorWithArg:
        return u"ReportErrorWithArg"_s;
    case TokenKind::ReportErrorWithArgs:
        return u"ReportErrorWithArgs"_s;
    case TokenKind::Identifier:
        return u"Identifier"_s;
    case TokenKind::String:
        return u"String"_s;
    case TokenKind::LeftBrace:
        return u"LeftBrace"_s;
    case TokenKind::RightBrace:
        return u"RightBrace"_s;
    case TokenKind::LeftParen:
        return u"LeftParen"_s;
    case TokenKind::RightParen:
        return u"RightParen"_s;
    case TokenKind::Semicolon:
        return u"Semicolon"_s;
    case TokenKind::Colon:
        return u"Colon"_s;
    case TokenKind::DoubleColon:
        return u"DoubleColon"_s;
    default:
        return u"UNKNOWN"_s;
    }
}

TokenKind classifyWord(std::string_view word)
{
    return words.find(word, TokenKind::Identifier);
}

} // namespace Scan
