#include "message_checks/rule.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace Checks {

namespace {

struct RuleRow
{
    Rule rule;
    const char16_t *name;
    const char16_t *description;
};

constexpr RuleRow rows[] = {
    {Rule::New, u"new", u"a message that has not been reviewed"},
    {Rule::Obsolete, u"obsolete", u"a message or a string that is no longer used"},
    {Rule::Incomplete, u"incomplete", u"a message without a field that its severity needs"},
    {Rule::LookUp, u"look-up", u"a character in a message with which no translation is found"},
    {Rule::Character, u"character", u"a character that the file cannot store"},
    {Rule::Place, u"place", u"%1 to %9: skipped, beyond 9, in a title, or different in a translation"},
    {Rule::Blank, u"blank", u"a blank at either end; in a translation, others than in the source"},
    {Rule::Unsaved, u"unsaved", u"what is lost when the table is saved: unknown elements, comments, a title"},
    {Rule::Duplicate, u"duplicate", u"a second message with the same key"},
    {Rule::Unfinished, u"unfinished", u"a string without a finished translation"},
    {Rule::Accelerator, u"accelerator", u"an accelerator (&) in only one of source and translation"},
};

const RuleRow &rowOf(Rule rule)
{
    return *std::find_if(std::begin(rows), std::end(rows),
                         [rule](const RuleRow &row) { return row.rule == rule; });
}

} // namespace

const std::vector<Rule> &allRules()
{
    static const std::vector<Rule> rules = [] {
        std::vector<Rule> all;
        std::transform(std::begin(rows), std::end(rows), std::back_inserter(all),
                       [](const RuleRow &row) { return row.rule; });
        return all;
    }();
    return rules;
}

QString ruleName(Rule rule)
{
    return QString::fromUtf16(rowOf(rule).name);
}

std::optional<Rule> ruleNamed(QStringView name)
{
    const auto *found = std::find_if(std::begin(rows), std::end(rows),
                                     [name](const RuleRow &row) { return name == QStringView(row.name); });
    return found == std::end(rows) ? std::nullopt : std::optional(found->rule);
}

QString ruleDescription(Rule rule)
{
    return QString::fromUtf16(rowOf(rule).description);
}

} // namespace Checks
