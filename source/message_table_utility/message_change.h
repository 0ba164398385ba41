#pragma once

#include "clt_message_table.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace MessageWindow {

/// What one step of editing does to one message: one that is only in `after` is added, one that is only in
/// `before` is removed. If there are both, they have the same key.
struct MessageChange
{
    std::optional<Clt::Message> before;
    std::optional<Clt::Message> after;
};

using MessageChanges = std::vector<MessageChange>;

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

/// True if both have the same severity, state and texts.
bool areEqual(const Clt::Message &one, const Clt::Message &other);

// The changes that give messages a severity, a state or a text. Messages that have it already, and keys that
// the table does not have, are left out.

using Keys = std::vector<Clt::MessageKey>;

MessageChanges severityChanges(const Clt::MessageTable &table, const Keys &keys, Clt::Severity severity);
MessageChanges stateChanges(const Clt::MessageTable &table, const Keys &keys, Clt::MessageState state);
MessageChanges fieldChange(const Clt::MessageTable &table, const Clt::MessageKey &key, Field field,
                           const QString &text);

/// What to look for in the texts of messages.
struct Search
{
    QString text;
    Qt::CaseSensitivity caseSensitivity = Qt::CaseInsensitive;
};

/// The changes that replace every occurrence in the texts of those messages.
MessageChanges replacements(const Clt::MessageTable &table, const Keys &keys, const Search &search,
                            const QString &replacement);

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
