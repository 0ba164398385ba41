#include "scanner/call.h"

#include "clt_message_enumerations.h"
#include "scanner/string_literal.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

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

namespace {

QString joined(std::string_view source)
{
    return QString::fromStdString(joinTokens(source));
}

bool isAnswerName(const QString &name)
{
    static const QStringList names = {u"NoAnswer"_s, u"Ok"_s,     u"Yes"_s,    u"No"_s,
                                      u"Abort"_s,    u"Cancel"_s, u"Discard"_s};
    return names.contains(name);
}

bool namesAnswers(std::string_view expression)
{
    const QString answers = Clt::answerExpressionToText(joined(expression));
    const QStringList names = answers.split(u", "_s);
    return std::ranges::all_of(names, isAnswerName);
}

} // namespace

QuestionCall::QuestionCall(CallFamily family, int line, const Tokenizer &token)
    : m_family(family)
    , m_line(line)
    , m_question(token.literals())
    , m_argumentBegin(token.begin())
{
}

QuestionCall::Progress QuestionCall::take(const Tokenizer &token)
{
    switch (token.kind()) {
    case TokenKind::LeftParen:
        ++m_parentheses;
        break;
    case TokenKind::RightParen:
        if (--m_parentheses > 0)
            break;
        endArgument(token);
        return Progress::Ends;
    case TokenKind::LeftBrace:
        ++m_braces;
        break;
    case TokenKind::RightBrace:
        if (m_braces == 0)
            return Progress::Breaks;
        --m_braces;
        break;
    case TokenKind::Other:
        if (m_parentheses == 1 && token.text() == ",")
            endArgument(token);
        break;
    default:
        break;
    }
    return Progress::Continues;
}

void QuestionCall::endArgument(const Tokenizer &token)
{
    const std::string_view argument = token.between(m_argumentBegin, token.begin());
    if (m_arguments == 1 || m_arguments == 2)
        m_first[m_arguments - 1] = argument;
    m_last = {m_last[1], argument};
    ++m_arguments;
    m_argumentBegin = token.end();
}

// The order of the arguments is either question, answers, values of the placeholders; or question, values,
// answers.
std::optional<QString> QuestionCall::tag() const
{
    constexpr std::uint32_t minimum = 3;
    if (m_arguments < minimum)
        return std::nullopt;
    const bool answersAreLast =
        m_family == CallFamily::QuestionWithArguments && !namesAnswers(m_first[0]) && namesAnswers(m_last[0]);
    const auto &answers = answersAreLast ? m_last : m_first;
    return Clt::questionDisplayText(decodeLiterals(m_question), joined(answers[0]), joined(answers[1]));
}

} // namespace Scan
