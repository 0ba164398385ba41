#include "message_table_utility/message_change.h"

#include "message_checks/message_remarks.h"

#include <QStringMatcher>

#include <algorithm>
#include <utility>

namespace MessageWindow {

namespace {

const Clt::Message &messageAt(const Places &places, int number)
{
    return places[static_cast<std::size_t>(number)]->second;
}

std::size_t indexOf(Field field)
{
    return static_cast<std::size_t>(field);
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

/// The edits that give messages a value. Messages that have it already are left out.
template<typename Value>
MessageEdits valueEdits(const Places &places, const Numbers &numbers, Value MessageValues::*member,
                        Value value)
{
    MessageEdits edits;
    edits.reserve(numbers.size());
    for (const int number : numbers) {
        MessageValues values = valuesOf(messageAt(places, number));
        if (values.*member == value)
            continue;
        values.*member = value;
        edits.push_back({number, std::move(values)});
    }
    return edits;
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

Places placesOf(const Clt::MessageTable &table)
{
    Places places;
    places.reserve(table.size());
    for (auto place = table.begin(); place != table.end(); ++place)
        places.push_back(place);
    return places;
}

MessageValues valuesOf(const Clt::Message &message)
{
    return {message.severity(),
            message.state(),
            {message.sourceTitle(), message.sourceText(), message.sourceAction()}};
}

void setValues(Clt::Message &message, const MessageValues &values)
{
    message.setSeverity(values.severity);
    message.setState(values.state);
    for (const Field field : fields) {
        const QString &text = values.texts[indexOf(field)];
        if (fieldOf(message, field) != text)
            setField(message, field, text);
    }
}

MessageEdits severityEdits(const Places &places, const Numbers &numbers, Clt::Severity severity)
{
    return valueEdits(places, numbers, &MessageValues::severity, severity);
}

MessageEdits stateEdits(const Places &places, const Numbers &numbers, Clt::MessageState state)
{
    return valueEdits(places, numbers, &MessageValues::state, state);
}

MessageEdits fieldEdit(const Places &places, int number, Field field, const QString &text)
{
    const Clt::Message &message = messageAt(places, number);
    if (fieldOf(message, field) == text)
        return {};
    MessageEdit edit{number, valuesOf(message)};
    edit.values.texts[indexOf(field)] = text;
    return {edit};
}

MessageEdits replacements(const Places &places, const Numbers &numbers, const Search &search,
                          const QString &replacement, const EditProgress &progress)
{
    MessageEdits edits;
    if (search.text.isEmpty())
        return edits;
    constexpr qsizetype reportInterval = 1000;
    const QStringMatcher matcher(search.text, search.caseSensitivity);
    qsizetype done = 0;
    for (const int number : numbers) {
        if (done++ % reportInterval == 0 && !progress(done))
            break;
        const Clt::Message &message = messageAt(places, number);
        const auto matches = [&](Field field) { return matcher.indexIn(fieldOf(message, field)) >= 0; };
        if (std::none_of(std::begin(fields), std::end(fields), matches))
            continue;
        MessageEdit edit{number, valuesOf(message)};
        for (QString &text : edit.values.texts)
            text.replace(search.text, replacement, search.caseSensitivity);
        if (edit.values != valuesOf(message))
            edits.push_back(std::move(edit));
    }
    return edits;
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
