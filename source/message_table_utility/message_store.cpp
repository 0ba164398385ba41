#include "message_table_utility/message_store.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace MessageWindow {

namespace {

/// Makes changes.
class ChangeStep : public QUndoCommand
{
public:
    ChangeStep(const QString &name, MessageStore &store, MessageChanges changes)
        : QUndoCommand(name)
        , m_store(store)
        , m_changes(std::move(changes))
    {
    }

    void redo() override { m_store.apply(m_changes); }
    void undo() override { m_store.revert(m_changes); }

protected:
    MessageStore &m_store;
    MessageChanges m_changes;
};

/// Changes a field of a message. The next change of the same field is added to it.
class TypingStep : public ChangeStep
{
public:
    TypingStep(const QString &name, MessageStore &store, MessageChanges changes, Field field)
        : ChangeStep(name, store, std::move(changes))
        , m_field(field)
    {
    }

    int id() const override { return 1; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = dynamic_cast<const TypingStep *>(other);
        if (!next || next->m_field != m_field ||
            next->m_changes.front().after->key() != m_changes.front().after->key())
            return false;
        m_changes.front().after = next->m_changes.front().after;
        setObsolete(areEqual(*m_changes.front().before, *m_changes.front().after));
        return true;
    }

private:
    Field m_field;
};

/// Replaces the whole table.
class TableStep : public QUndoCommand
{
public:
    TableStep(const QString &name, MessageStore &store, Clt::MessageTable table)
        : QUndoCommand(name)
        , m_store(store)
        , m_other(std::move(table))
    {
    }

    void redo() override { m_store.swapTable(m_other); }
    void undo() override { m_store.swapTable(m_other); }

private:
    MessageStore &m_store;
    Clt::MessageTable m_other; // the table that is not shown
};

} // namespace

MessageStore::MessageStore(QObject *parent)
    : QObject(parent)
{
}

void MessageStore::reset(Clt::MessageTable table)
{
    m_undoStack.clear();
    m_table = std::move(table);
    m_status = statusOf(m_table);
}

bool MessageStore::save(const QString &fileName)
{
    if (!m_table.save(fileName))
        return false;
    m_undoStack.setClean();
    return true;
}

void MessageStore::change(const QString &name, MessageChanges changes)
{
    if (!changes.empty())
        m_undoStack.push(new ChangeStep(name, *this, std::move(changes)));
}

void MessageStore::type(const QString &name, const Clt::MessageKey &key, Field field, const QString &text)
{
    MessageChanges changes = fieldChange(m_table, key, field, text);
    if (!changes.empty())
        m_undoStack.push(new TypingStep(name, *this, std::move(changes), field));
}

void MessageStore::replaceTable(const QString &name, Clt::MessageTable table)
{
    m_undoStack.push(new TableStep(name, *this, std::move(table)));
}

void MessageStore::apply(const MessageChanges &changes)
{
    for (const MessageChange &change : changes)
        replace(change.before, change.after);
    tell(changes);
}

void MessageStore::revert(const MessageChanges &changes)
{
    MessageChanges reverse;
    reverse.reserve(changes.size());
    for (const MessageChange &change : changes) {
        replace(change.after, change.before);
        reverse.push_back({change.after, change.before});
    }
    tell(reverse);
}

void MessageStore::swapTable(Clt::MessageTable &table)
{
    std::swap(m_table, table);
    m_status = statusOf(m_table);
    emit tableChanged(std::nullopt);
}

void MessageStore::replace(const std::optional<Clt::Message> &old, const std::optional<Clt::Message> &now)
{
    if (old) {
        m_status.remove(*old);
        if (!now)
            m_table.remove(old->key());
    }
    if (now) {
        m_status.add(*now);
        m_table.insert(*now);
    }
}

void MessageStore::tell(const MessageChanges &changes)
{
    const bool areSameKeys = std::all_of(changes.begin(), changes.end(), [](const MessageChange &change) {
        return change.before && change.after;
    });
    if (areSameKeys) {
        emit messagesChanged(changes);
        return;
    }
    const auto shown = std::find_if(changes.begin(), changes.end(),
                                    [](const MessageChange &change) { return change.after.has_value(); });
    emit tableChanged(shown == changes.end() ? std::nullopt : std::optional(shown->after->key()));
}

} // namespace MessageWindow
