#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace Checks {

/// What can be wrong with a message of a message table or a string of a translation file.
enum class Rule
{
    New,         ///< a message that has not been reviewed
    Obsolete,    ///< a message or a string that is no longer used
    Incomplete,  ///< a message without a field that its severity needs
    LookUp,      ///< a character with which no translation is found
    Character,   ///< a character that the file cannot store
    Place,       ///< "%1" to "%9": skipped, beyond 9, in a title, or different in the translation
    Blank,       ///< a blank at the beginning or the end; in a translation, others than in the source
    Unsaved,     ///< what is not saved, such as a title that the severity does not allow
    Duplicate,   ///< a second message with the same key
    Unfinished,  ///< a string without a finished translation
    Accelerator, ///< an accelerator ("&") in only one of source and translation
};

/// All rules, in the order of the enumeration.
const std::vector<Rule> &allRules();

/// The rule's name on the command line and in reports, such as "look-up".
QString ruleName(Rule rule);

/// The rule with that name.
std::optional<Rule> ruleNamed(QStringView name);

/// What the rule finds, in English, for a list of the rules.
QString ruleDescription(Rule rule);

} // namespace Checks
