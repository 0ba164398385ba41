#include "message_table_utility/message_store.h"

#include <QUndoCommand>

#include <utility>

namespace MessageWindow {

namespace {

/// Changes values of messages.
class EditStep : public QUndoCommand
{
public:
    EditStep(const QString &name, MessageStore &store, MessageEdits edits)
        : QUndoCommand(name)
        , m_store(store)
        , m_edits(std::move(edits))
    {
    }

    void redo() override { m_store.swapValues(m_edits); }
    void undo() override { m_store.swapValues(m_edits); }

protected:
    MessageStore &m_store;
    MessageEdits m_edits; // with the values that the messages do not have now
};

/// Changes a field of a message. The next change of the same field is added to it.
class TypingStep : public EditStep
{
public:
    TypingStep(const QString &name, MessageStore &store, MessageEdits edits, Field field)
        : EditStep(name, store, std::move(edits))
        , m_field(field)
    {
    }

    int id() const override { return 1; }

    // Both have been made: the values before this one are those before both.
    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = dynamic_cast<const TypingStep *>(other);
        const int number = m_edits.front().number;
        if (!next || next->m_field != m_field || next->m_edits.front().number != number)
            return false;
        setObsolete(m_edits.front().values == valuesOf(m_store.message(number)));
        return true;
    }

private:
    Field m_field;
};

/// Adopts texts.
class AdoptionStep : public QUndoCommand
{
public:
    AdoptionStep(const QString &name, MessageStore &store, const Adoption &adoption)
        : QUndoCommand(name)
        , m_store(store)
        , m_adoption(adoption)
    {
    }

    void redo() override { m_store.replaceMessages({m_adoption.removed}, {m_adoption.after}); }
    void undo() override { m_store.replaceMessages({}, {m_adoption.before, m_adoption.removed}); }

private:
    MessageStore &m_store;
    Adoption m_adoption;
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
    m_places = placesOf(m_table);
    m_status = statusOf(m_table);
}

bool MessageStore::save(const QString &fileName)
{
    if (!m_table.save(fileName))
        return false;
    m_undoStack.setClean();
    return true;
}

void MessageStore::edit(const QString &name, MessageEdits edits)
{
    if (!edits.empty())
        m_undoStack.push(new EditStep(name, *this, std::move(edits)));
}

void MessageStore::type(const QString &name, int number, Field field, const QString &text)
{
    MessageEdits edits = fieldEdit(m_places, number, field, text);
    if (!edits.empty())
        m_undoStack.push(new TypingStep(name, *this, std::move(edits), field));
}

void MessageStore::adopt(const QString &name, const Adoption &adoption)
{
    m_undoStack.push(new AdoptionStep(name, *this, adoption));
}

void MessageStore::replaceTable(const QString &name, Clt::MessageTable table)
{
    m_undoStack.push(new TableStep(name, *this, std::move(table)));
}

void MessageStore::swapValues(MessageEdits &edits)
{
    Numbers numbers;
    numbers.reserve(edits.size());
    for (MessageEdit &edit : edits) {
        Clt::Message &message = m_table.editable(m_places[static_cast<std::size_t>(edit.number)]);
        MessageValues before = valuesOf(message);
        m_status.remove(message);
        setValues(message, edit.values);
        m_status.add(message);
        edit.values = std::move(before);
        numbers.push_back(edit.number);
    }
    emit messagesChanged(numbers);
}

void MessageStore::swapTable(Clt::MessageTable &table)
{
    std::swap(m_table, table);
    tableReplaced(std::nullopt);
}

void MessageStore::replaceMessages(const std::vector<Clt::Message> &removed,
                                   const std::vector<Clt::Message> &inserted)
{
    for (const Clt::Message &message : removed)
        m_table.remove(message.key());
    for (const Clt::Message &message : inserted)
        m_table.insert(message);
    tableReplaced(inserted.front().key());
}

void MessageStore::tableReplaced(const std::optional<Clt::MessageKey> &shown)
{
    m_places = placesOf(m_table);
    m_status = statusOf(m_table);
    emit tableChanged(shown);
}

} // namespace MessageWindow
