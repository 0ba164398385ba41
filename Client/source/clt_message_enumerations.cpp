#include "clt_message_enumerations.h"

#include "nvx_util/assertion.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

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
    Named<Severity>{Severity::Information, "Information"_L1},
    Named<Severity>{Severity::Warning, "Warning"_L1},
    Named<Severity>{Severity::Critical, "Critical"_L1},
    Named<Severity>{Severity::Status, "Status"_L1},
    Named<Severity>{Severity::Question, "Question"_L1},
};

constexpr std::array states{
    Named<MessageState>{MessageState::InSync, "InSync"_L1},
    Named<MessageState>{MessageState::New, "New"_L1},
    Named<MessageState>{MessageState::Obsolete, "Obsolete"_L1},
};

constexpr Named<Answer> noAnswer{Answer::NoAnswer, "NoAnswer"_L1};

// In the order of their names in a text.
constexpr std::array answersInOrder{
    Named<Answer>{Answer::Ok, "Ok"_L1},         Named<Answer>{Answer::Yes, "Yes"_L1},
    Named<Answer>{Answer::No, "No"_L1},         Named<Answer>{Answer::Abort, "Abort"_L1},
    Named<Answer>{Answer::Cancel, "Cancel"_L1}, Named<Answer>{Answer::Discard, "Discard"_L1},
};

template<typename Table, typename Value>
QString nameOf(const Table &table, Value value)
{
    const auto found = std::ranges::find(table, value, [](const auto &entry) { return entry.value; });
    if (found != std::end(table))
        return found->name;
    NVX_ASSERT(false, unit);
    return u"Unknown"_s;
}

template<typename Table>
bool isNameIn(const Table &table, QStringView name)
{
    return std::ranges::any_of(table, [name](const auto &entry) { return entry.name == name; });
}

template<typename Table, typename Value>
Value valueOf(const Table &table, QStringView name, Value fallback)
{
    const auto found = std::ranges::find_if(table, [name](const auto &entry) { return entry.name == name; });
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
    const QString mark = question.endsWith(u'?') ? QString() : u"?"_s;
    return question + mark + u' ' + answers + u"; "_s + defaultAnswer;
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

bool isSeverity(QStringView text)
{
    return isNameIn(severities, text);
}

QString stateToText(MessageState state)
{
    return nameOf(states, state);
}

MessageState textToState(QStringView text)
{
    return valueOf(states, text, MessageState::InSync);
}

bool isState(QStringView text)
{
    return isNameIn(states, text);
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
