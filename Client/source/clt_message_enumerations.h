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
// is not the name of a value also raises one, and its value is Information, InSync or NoAnswer. isSeverity()
// and isState() return whether a text is the name of a value.

QString severityToText(Severity severity);
Severity textToSeverity(QStringView text);
bool isSeverity(QStringView text);

QString stateToText(MessageState state);
MessageState textToState(QStringView text);
bool isState(QStringView text);

QString answerToText(Answer answer);
Answer textToAnswer(QStringView text);

/// The names of the answers in the set, in the order Ok, Yes, No, Abort, Cancel, Discard, joined by ", ";
/// empty for the empty set.
QString answersToText(Answers answers);

/// Parses a list of answers as answersToText writes it.
Answers textToAnswers(QStringView text);

/// Converts an expression from a source file, names joined by "|" with any number of "::" prefixes each, to
/// the names alone, joined by ", ".
QString answerExpressionToText(QStringView expression);

/// The text of a question for display and for keys, such as "Save? Yes, No; Yes": the question, with "?"
/// appended unless it ends with one, the names of the answers, and the name of the default answer.
QString questionDisplayText(const QString &question, Answers answers, Answer defaultAnswer);

/// The same text, from the expressions for the answers in a source file.
QString questionDisplayText(const QString &question, QStringView answerExpression,
                            QStringView defaultExpression);

} // namespace Clt
