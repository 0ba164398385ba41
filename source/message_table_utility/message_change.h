#pragma once

#include "clt_message_table.h"

#include <QString>

#include <array>
#include <functional>
#include <iterator>
#include <vector>

namespace MessageWindow {

/// A text of a message that the user can edit.
enum class Field
{
    Title,
    Text,
    Action
};

constexpr Field fields[] = {Field::Title, Field::Text, Field::Action};

const QString &fieldOf(const Clt::Message &message, Field field);
void setField(Clt::Message &message, Field field, const QString &text);

using Keys = std::vector<Clt::MessageKey>;

/// Where the messages of a table are, in key order. Places stay valid until a message is added or removed.
using Places = std::vector<Clt::MessageTable::Messages::const_iterator>;

Places placesOf(const Clt::MessageTable &table);

/// The numbers of messages in key order, ascending; the first message is number 0.
using Numbers = std::vector<int>;

/// What the user can edit in a message.
struct MessageValues
{
    Clt::Severity severity;
    Clt::MessageState state;
    std::array<QString, std::size(fields)> texts; ///< by field
    bool operator==(const MessageValues &other) const = default;
};

MessageValues valuesOf(const Clt::Message &message);
void setValues(Clt::Message &message, const MessageValues &values);

/// New values of a message.
struct MessageEdit
{
    int number;
    MessageValues values;
};

/// In the order of their numbers, and at most one for each message.
using MessageEdits = std::vector<MessageEdit>;

// The edits that give messages a severity, a state or a text. Messages that have it already are left out.

MessageEdits severityEdits(const Places &places, const Numbers &numbers, Clt::Severity severity);
MessageEdits stateEdits(const Places &places, const Numbers &numbers, Clt::MessageState state);
MessageEdits fieldEdit(const Places &places, int number, Field field, const QString &text);

/// What to look for in the texts of messages.
struct Search
{
    QString text;
    Qt::CaseSensitivity caseSensitivity = Qt::CaseInsensitive;
};

/// Called with the number of messages that are done. Returns false to stop.
using EditProgress = std::function<bool(qsizetype done)>;

/// The edits that replace every occurrence in the texts of those messages; those until it was stopped.
MessageEdits replacements(
    const Places &places, const Numbers &numbers, const Search &search, const QString &replacement,
    const EditProgress &progress = [](qsizetype) { return true; });

/// How many messages are in which state, or lack a field that their severity needs. Obsolete messages are not
/// incomplete.
struct TableStatus
{
    int newMessages = 0;
    int obsolete = 0;
    int incomplete = 0;
    int unsaved = 0; ///< with a title or an action that is not saved with their severity

    void add(const Clt::Message &message);
    void remove(const Clt::Message &message);
};

TableStatus statusOf(const Clt::MessageTable &table);

} // namespace MessageWindow
