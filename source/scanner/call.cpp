#include "scanner/call.h"

namespace Scan {

CallFamily familyOf(TokenKind macro)
{
    switch (macro) {
    case TokenKind::ReportErrorWithArg:
    case TokenKind::ReportErrorWithArgs:
        return CallFamily::ErrorWithArguments;
    case TokenKind::ReportMessage:
        return CallFamily::Message;
    case TokenKind::ReportMessageWithArg:
    case TokenKind::ReportMessageWithArgs:
        return CallFamily::MessageWithArguments;
    case TokenKind::AskQuestion:
        return CallFamily::Question;
    case TokenKind::AskQuestionWithArg:
    case TokenKind::AskQuestionWithArgs:
        return CallFamily::QuestionWithArguments;
    default:
        return CallFamily::Error;
    }
}

} // namespace Scan
