#pragma once

#include <QFlags>
#include <QString>
#include <QStringView>

namespace Clt {

/// The kind of a message.
enum class Severity : qint32
{
    Information = 0,
    Warning = 1,
    Critical = 2,
    Status = 3,
    Question = 4
};

/// How a message of the table relates to the sources.
enum class MessageState : qint32
{
    InSync = 0,  ///< raised in the sources, and reviewed in the table
    New = 1,     ///< found in the sources, not yet reviewed in the table
    Obsolete = 2 ///< in the table, no longer found in the sources
};

/// A button that a question offers. The values are those of QMessageBox::StandardButton.
enum class Answer : quint32
{
    NoAnswer = 0,
    Ok = 0x400,
    Yes = 0x4000,
    No = 0x10000,
    Abort = 0x40000,
    Cancel = 0x400000,
    Discard = 0x800000
};
Q_DECLARE_FLAGS(Answers, Answer)
Q_DECLARE_OPERATORS_FOR_FLAGS(Answers)

// The texts are the enumerators' names; comparisons are case-sensitive. A value that is not in its
// enumeration raises an assertion failure of the unit "clt_message", and its text is "Unknown". A text that
// is not the name of a value also raises one, and its value is Information, InSync or NoAnswer.

QString severityToText(Severity severity);
Severity textToSeverity(QStringView text);

QString stateToText(MessageState state);
MessageState textToState(QStringView text);

QString answerToText(Answer answer);
Answer textToAnswer(QStringView text);

/// The names of the answers in the set, in the order Ok, Yes, No, Abort, Cancel, Discard, joined by ", ";
/// empty for the empty set.
QString answersToText(Answers answers);

/// The set of the answers whose names, joined by ", ", are the text.
Answers textToAnswers(QStringView text);

/// The names of the answers, joined by ", ", in an expression from a source file: names joined by "|", each
/// with any number of "::" prefixes.
QString answerExpressionToText(QStringView expression);

/// A question as it is shown and as it is in keys: the question with "?" at its end, a blank, the answers'
/// names, "; " and the default answer's name.
QString questionDisplayText(const QString &question, Answers answers, Answer defaultAnswer);

/// The same from the expressions of a source file for the answers and the default answer.
QString questionDisplayText(const QString &question, QStringView answerExpression,
                            QStringView defaultExpression);

} // namespace Clt
