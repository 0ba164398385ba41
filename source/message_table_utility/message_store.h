#pragma once

#include "clt_message_table.h"
#include "message_table_utility/message_change.h"

#include <QObject>
#include <QUndoStack>

#include <optional>

namespace MessageWindow {

/// The table of the window, and the steps of editing that can be undone.
class MessageStore : public QObject
{
    Q_OBJECT

public:
    explicit MessageStore(QObject *parent = nullptr);

    const Clt::MessageTable &table() const { return m_table; }
    const TableStatus &status() const { return m_status; }
    QUndoStack &undoStack() { return m_undoStack; }

    /// Replaces the table; nothing can be undone after that.
    void reset(Clt::MessageTable table);

    /// Saves the table as Clt::MessageTable::save does. Undoing to this step makes the table unchanged again.
    bool save(const QString &fileName);

    /// Makes the changes, as one step with that name. Does nothing if there are none.
    void change(const QString &name, MessageChanges changes);

    /// The same for a text that the user is typing: successive changes of one field are one step.
    void type(const QString &name, const Clt::MessageKey &key, Field field, const QString &text);

    /// Replaces the table as one step.
    void replaceTable(const QString &name, Clt::MessageTable table);

    // For the steps.
    void apply(const MessageChanges &changes);
    void revert(const MessageChanges &changes);
    void swapTable(Clt::MessageTable &table);

signals:
    /// Messages have changed; none was added or removed.
    void messagesChanged(const MessageWindow::MessageChanges &changes);

    /// Messages may have been added or removed. The message that the user should see, if there is one.
    void tableChanged(const std::optional<Clt::MessageKey> &shown);

private:
    void replace(const std::optional<Clt::Message> &old, const std::optional<Clt::Message> &now);
    void tell(const MessageChanges &changes);

    Clt::MessageTable m_table;
    TableStatus m_status;
    QUndoStack m_undoStack;
};

} // namespace MessageWindow
