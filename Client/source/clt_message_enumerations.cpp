#include "clt_message_enumerations.h"

#include "nvx_util/assertion.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <array>
#include <iterator>

namespace Clt {

namespace {

constexpr const char *unit = "clt_message";
constexpr QStringView scope = u"::";
constexpr QStringView listSeparator = u", ";

template<typename Value>
struct Named
{
    Value value;
    QLatin1String name;
};

constexpr std::array severities{
    Named<Severity>{Severity::Information, QLatin1String("Information")},
    Named<Severity>{Severity::Warning, QLatin1String("Warning")},
    Named<Severity>{Severity::Critical, QLatin1String("Critical")},
    Named<Severity>{Severity::Status, QLatin1String("Status")},
    Named<Severity>{Severity::Question, QLatin1String("Question")},
};

constexpr std::array states{
    Named<MessageState>{MessageState::InSync, QLatin1String("InSync")},
    Named<MessageState>{MessageState::New, QLatin1String("New")},
    Named<MessageState>{MessageState::Obsolete, QLatin1String("Obsolete")},
};

constexpr Named<Answer> noAnswer{Answer::NoAnswer, QLatin1String("NoAnswer")};

// In the order in which a set of answers is turned into text.
constexpr std::array answersInOrder{
    Named<Answer>{Answer::Ok, QLatin1String("Ok")},
    Named<Answer>{Answer::Yes, QLatin1String("Yes")},
    Named<Answer>{Answer::No, QLatin1String("No")},
    Named<Answer>{Answer::Abort, QLatin1String("Abort")},
    Named<Answer>{Answer::Cancel, QLatin1String("Cancel")},
    Named<Answer>{Answer::Discard, QLatin1String("Discard")},
};

template<typename Table, typename Value>
QString nameOf(const Table &table, Value value)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [value](const auto &entry) { return entry.value == value; });
    if (found != std::end(table))
        return found->name;
    NVX_ASSERT(false, unit);
    return QStringLiteral("Unknown");
}

template<typename Table, typename Value>
Value valueOf(const Table &table, QStringView name, Value fallback)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [name](const auto &entry) { return entry.name == name; });
    if (found != std::end(table))
        return found->value;
    NVX_ASSERT(false, unit);
    return fallback;
}

QStringView lastScopeSection(QStringView name)
{
    const qsizetype last = name.lastIndexOf(scope);
    return last < 0 ? name : name.sliced(last + scope.size());
}

QString questionWith(const QString &question, const QString &answers, const QString &defaultAnswer)
{
    const QString mark = question.endsWith(u'?') ? QString() : QStringLiteral("?");
    return question + mark + u' ' + answers + QStringLiteral("; ") + defaultAnswer;
}

} // namespace

QString severityToText(Severity severity)
{
    return nameOf(severities, severity);
}

Severity textToSeverity(QStringView text)
{
    return valueOf(severities, text, Severity::Information);
}

QString stateToText(MessageState state)
{
    return nameOf(states, state);
}

MessageState textToState(QStringView text)
{
    return valueOf(states, text, MessageState::InSync);
}

QString answerToText(Answer answer)
{
    return answer == noAnswer.value ? QString(noAnswer.name) : nameOf(answersInOrder, answer);
}

Answer textToAnswer(QStringView text)
{
    return text == noAnswer.name ? noAnswer.value : valueOf(answersInOrder, text, Answer::NoAnswer);
}

QString answersToText(Answers answers)
{
    QStringList names;
    for (const Named<Answer> &answer : answersInOrder) {
        if (answers.testFlag(answer.value))
            names += answer.name;
    }
    return names.join(listSeparator);
}

Answers textToAnswers(QStringView text)
{
    Answers answers;
    const QList<QStringView> names = text.split(listSeparator);
    for (const QStringView name : names)
        answers |= textToAnswer(name);
    return answers;
}

QString answerExpressionToText(QStringView expression)
{
    QStringList names;
    const QList<QStringView> parts = expression.split(u'|');
    for (const QStringView part : parts)
        names += lastScopeSection(part.trimmed()).toString();
    return names.join(listSeparator);
}

QString questionDisplayText(const QString &question, Answers answers, Answer defaultAnswer)
{
    return questionWith(question, answersToText(answers), answerToText(defaultAnswer));
}

QString questionDisplayText(const QString &question, QStringView answerExpression,
                            QStringView defaultExpression)
{
    return questionWith(question, answerExpressionToText(answerExpression),
                        lastScopeSection(defaultExpression).toString());
}

} // namespace Clt
