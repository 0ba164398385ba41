#pragma once

#include "clt_message.h"
#include "message_checks/rule.h"

#include <QString>

#include <vector>

namespace Checks {

/// One thing that is wrong with a message or a translation.
struct Remark
{
    Rule rule;
    const char *field;   ///< of a message, in English; null for a translation
    const char *pattern; ///< in English, with places for the arguments
    QString argument;    ///< null if there is none
    QString secondArgument;

    /// The remark for the user, in the language of the program.
    QString text() const;
};

using Remarks = std::vector<Remark>;

// The fields that a message table stores for a severity. It stores the text for all of them.
bool hasTitle(Clt::Severity severity);
bool hasAction(Clt::Severity severity);

/// What is wrong with the context and the source texts of a message, field after field. Its state is not
/// considered.
Remarks remarksOn(const Clt::Message &message);

/// What is wrong with a translation, or with one of its plural forms, compared with its source: different
/// places, accelerators, or blanks at the ends.
Remarks remarksOnTranslation(const QString &source, const QString &translation);

/// What findings call a string of a translation file: its context and the beginning of its source, on one
/// line.
QString stringName(const QString &context, const QString &source);

} // namespace Checks
