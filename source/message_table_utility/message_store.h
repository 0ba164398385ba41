#pragma once

#include "clt_message_table.h"
#include "message_table_utility/adoption.h"
#include "message_table_utility/message_change.h"

#include <QObject>
#include <QUndoStack>

#include <optional>
#include <vector>

namespace MessageWindow {

/// The table of the window, and the steps of editing that can be undone.
class MessageStore : public QObject
{
    Q_OBJECT

public:
    explicit MessageStore(QObject *parent = nullptr);

    const Clt::MessageTable &table() const { return m_table; }

    /// The table's messages in key order.
    const Places &places() const { return m_places; }
    const Clt::Message &message(int number) const
    {
        return m_places[static_cast<std::size_t>(number)]->second;
    }

    const TableStatus &status() const { return m_status; }
    QUndoStack &undoStack() { return m_undoStack; }

    /// Replaces the table; nothing can be undone after that.
    void reset(Clt::MessageTable table);

    /// Saves the table as Clt::MessageTable::save does. Undoing to this step makes the table unchanged again.
    bool save(const QString &fileName);

    /// Makes the edits, as one step with that name. Does nothing if there are none.
    void edit(const QString &name, MessageEdits edits);

    /// The same for a text that the user is typing: successive changes of one field are one step.
    void type(const QString &name, int number, Field field, const QString &text);

    /// Adopts the texts of a message, as one step.
    void adopt(const QString &name, const Adoption &adoption);

    /// Replaces the table as one step.
    void replaceTable(const QString &name, Clt::MessageTable table);

    // For the steps.
    /// Gives messages those values, and stores their old ones in the edits.
    void swapValues(MessageEdits &edits);
    void swapTable(Clt::MessageTable &table);

    /// Removes messages, then inserts at least one; the user should see the first of these.
    void replaceMessages(const std::vector<Clt::Message> &removed, const std::vector<Clt::Message> &inserted);

signals:
    /// The messages with those numbers have changed; none was added or removed.
    void messagesChanged(const MessageWindow::Numbers &numbers);

    /// Messages may have been added or removed. The message that the user should see, if there is one.
    void tableChanged(const std::optional<Clt::MessageKey> &shown);

private:
    void tableReplaced(const std::optional<Clt::MessageKey> &shown);

    Clt::MessageTable m_table;
    Places m_places;
    TableStatus m_status;
    QUndoStack m_undoStack;
};

} // namespace MessageWindow
