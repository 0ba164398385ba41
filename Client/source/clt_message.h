#pragma once

#include "clt_message_enumerations.h"
#include "clt_message_key.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace Clt {

/// One message to the user. Its title, text and action each have two forms: as written in the sources or the
/// table, and translated.
class Message
{
public:
    Severity severity() const { return m_severity; }
    void setSeverity(Severity severity) { m_severity = severity; }

    MessageState state() const { return m_state; }
    void setState(MessageState state) { m_state = state; }

    const MessageKey &key() const { return m_key; }
    void setKey(const MessageKey &key) { m_key = key; }

    // The three text setters store the text as the source form, and its translation by the application's
    // translators, in the current key's context, as the translated form. The look-up converts context and
    // text to ASCII, with "?" for every other UTF-16 code unit; a text without a translation is its own
    // translation. Setting the key later does not translate the texts again.

    const QString &title() const { return m_title; }
    const QString &sourceTitle() const { return m_sourceTitle; }
    void setTitle(const QString &title);

    const QString &text() const { return m_text; }
    const QString &sourceText() const { return m_sourceText; }
    void setText(const QString &text);

    /// What the user should do.
    const QString &action() const { return m_action; }
    const QString &sourceAction() const { return m_sourceAction; }
    void setAction(const QString &action);

    /// The source file that raises the message.
    const QString &file() const { return m_file; }
    void setFile(const QString &file) { m_file = file; }

    /// The line in that file.
    qint32 line() const { return m_line; }
    void setLine(qint32 line) { m_line = line; }

    Answers answers() const { return m_answers; }
    void setAnswers(Answers answers) { m_answers = answers; }

    Answer defaultAnswer() const { return m_defaultAnswer; }
    void setDefaultAnswer(Answer answer) { m_defaultAnswer = answer; }

    /// The number of a solution entry; 0 for none.
    qint32 solution() const { return m_solution; }
    void setSolution(qint32 solution) { m_solution = solution; }

    /// Fills the placeholders of both forms of text and action; see Clt::applyArguments. Titles are not
    /// changed.
    void applyArguments(const QStringList &arguments);

    /// The lines for a log, each ended by "\n": severity, file and line; the translated text; and, if it
    /// differs, the source text in parentheses.
    QString logText() const;

private:
    QString translated(const QString &text) const;

    Severity m_severity = Severity::Information;
    MessageState m_state = MessageState::InSync;
    MessageKey m_key;
    QString m_title;
    QString m_text;
    QString m_action;
    QString m_sourceTitle;
    QString m_sourceText;
    QString m_sourceAction;
    QString m_file;
    qint32 m_line = 0;
    Answers m_answers = Answer::Ok;
    Answer m_defaultAnswer = Answer::NoAnswer;
    qint32 m_solution = 0;
};

/// The number of distinct placeholders in a text. A placeholder is a percent sign with all the decimal digits
/// that follow it: "%1 %2 %1" has two, "%10" has one.
int argumentCount(QStringView text);

/// The text with its placeholders filled, or unchanged if there are no arguments or fewer of them than
/// placeholders. Argument i is filled into the lowest-numbered placeholder if the text, as filled so far,
/// contains "%i"; so a text that contains only "%2" gets the second argument.
QString applyArguments(const QString &text, const QStringList &arguments);

} // namespace Clt
