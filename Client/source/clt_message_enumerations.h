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

/// How a message of the table stands to the sources.
enum class MessageState : qint32
{
    InSync = 0,  ///< raised in the sources, and the table agrees
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

// A value that its enumeration does not have raises an assertion failure of the unit "clt_message" and gives
// the text "Unknown"; a text that names no value raises one too and gives Information, InSync or NoAnswer.
// Texts are the enumerators' names, compared with case.

QString severityToText(Severity severity);
Severity textToSeverity(QStringView text);

QString stateToText(MessageState state);
MessageState textToState(QStringView text);

QString answerToText(Answer answer);
Answer textToAnswer(QStringView text);

/// The names of the answers in the set, in the order Ok, Yes, No, Abort, Cancel, Discard, joined by ", ";
/// empty for the empty set.
QString answersToText(Answers answers);

/// The set of the answers named in a text of names joined by ", ".
Answers textToAnswers(QStringView text);

/// The answers' names joined by ", " from an expression as it stands in a source file: names joined by "|",
/// each with any number of "::" prefixes.
QString answerExpressionToText(QStringView expression);

/// A question as it is shown and keyed: the question with "?" at its end, a blank, the answers' names, "; "
/// and the default answer's name.
QString questionDisplayText(const QString &question, Answers answers, Answer defaultAnswer);

/// The same from the expressions for the answers and the default answer, as they stand in a source file.
QString questionDisplayText(const QString &question, QStringView answerExpression,
                            QStringView defaultExpression);

} // namespace Clt
