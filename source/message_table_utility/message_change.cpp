#include "message_table_utility/message_change.h"

#include "message_checks/message_remarks.h"

namespace MessageWindow {

namespace {

/// The changes that an edit makes to the messages with those keys.
template<typename Edit>
MessageChanges changesBy(const Clt::MessageTable &table, const Keys &keys, Edit edit)
{
    MessageChanges changes;
    for (const Clt::MessageKey &key : keys) {
        const auto found = table.messages().find(key);
        if (found == table.end())
            continue;
        Clt::Message after = found->second;
        edit(after);
        if (!areEqual(found->second, after))
            changes.push_back({found->second, after});
    }
    return changes;
}

bool isIncomplete(const Clt::Message &message)
{
    if (message.state() == Clt::MessageState::Obsolete)
        return false;
    const Clt::Severity severity = message.severity();
    return message.sourceText().isEmpty() ||
           (Checks::hasTitle(severity) && message.sourceTitle().isEmpty()) ||
           (Checks::hasAction(severity) && message.sourceAction().isEmpty());
}

bool losesTexts(const Clt::Message &message)
{
    const Clt::Severity severity = message.severity();
    return (!Checks::hasTitle(severity) && !message.sourceTitle().isEmpty()) ||
           (!Checks::hasAction(severity) && !message.sourceAction().isEmpty());
}

void count(TableStatus &status, const Clt::Message &message, int difference)
{
    if (message.state() == Clt::MessageState::New)
        status.newMessages += difference;
    else if (message.state() == Clt::MessageState::Obsolete)
        status.obsolete += difference;
    if (isIncomplete(message))
        status.incomplete += difference;
    if (losesTexts(message))
        status.unsaved += difference;
}

} // namespace

const QString &fieldOf(const Clt::Message &message, Field field)
{
    switch (field) {
    case Field::Title:
        return message.sourceTitle();
    case Field::Action:
        return message.sourceAction();
    case Field::Text:
        break;
    }
    return message.sourceText();
}

void setField(Clt::Message &message, Field field, const QString &text)
{
    switch (field) {
    case Field::Title:
        return message.setTitle(text);
    case Field::Action:
        return message.setAction(text);
    case Field::Text:
        break;
    }
    message.setText(text);
}

bool areEqual(const Clt::Message &one, const Clt::Message &other)
{
    return one.severity() == other.severity() && one.state() == other.state() &&
           one.sourceTitle() == other.sourceTitle() && one.sourceText() == other.sourceText() &&
           one.sourceAction() == other.sourceAction();
}

MessageChanges severityChanges(const Clt::MessageTable &table, const Keys &keys, Clt::Severity severity)
{
    return changesBy(table, keys, [severity](Clt::Message &message) { message.setSeverity(severity); });
}

MessageChanges stateChanges(const Clt::MessageTable &table, const Keys &keys, Clt::MessageState state)
{
    return changesBy(table, keys, [state](Clt::Message &message) { message.setState(state); });
}

MessageChanges fieldChange(const Clt::MessageTable &table, const Clt::MessageKey &key, Field field,
                           const QString &text)
{
    return changesBy(table, {key}, [&](Clt::Message &message) { setField(message, field, text); });
}

MessageChanges replacements(const Clt::MessageTable &table, const Keys &keys, const Search &search,
                            const QString &replacement)
{
    if (search.text.isEmpty())
        return {};
    return changesBy(table, keys, [&](Clt::Message &message) {
        for (const Field field : fields) {
            QString text = fieldOf(message, field);
            if (text.contains(search.text, search.caseSensitivity))
                setField(message, field, text.replace(search.text, replacement, search.caseSensitivity));
        }
    });
}

void TableStatus::add(const Clt::Message &message)
{
    count(*this, message, 1);
}

void TableStatus::remove(const Clt::Message &message)
{
    count(*this, message, -1);
}

TableStatus statusOf(const Clt::MessageTable &table)
{
    TableStatus status;
    for (const auto &[key, message] : table)
        status.add(message);
    return status;
}

} // namespace MessageWindow
