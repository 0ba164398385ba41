#include "message_table_utility/message_rows.h"

#include "clt_message_table.h"
#include "window/marked_table_model.h"

namespace MessageWindow {

namespace {

// The first columns, which are the key.
constexpr int processColumn = 0;
constexpr int contextColumn = 1;
constexpr int tagColumn = 2;

constexpr int stateColumn = 3;
constexpr int firstTextColumn = 4;

Window::RowMark markOf(Clt::MessageState state)
{
    switch (state) {
    case Clt::MessageState::New:
        return Window::RowMark::New;
    case Clt::MessageState::Obsolete:
        return Window::RowMark::Obsolete;
    case Clt::MessageState::InSync:
        break;
    }
    return Window::RowMark::None;
}

} // namespace

Window::MarkedRows messageRows(const Clt::MessageTable &table)
{
    constexpr int columns = 7;
    Window::MarkedRows rows(columns);
    rows.reserve(table.size());
    // Neighbours with the same state share its text.
    Clt::MessageState state = Clt::MessageState::InSync;
    QString stateText = Clt::stateToText(state);
    for (const auto &[key, message] : table) {
        if (message.state() != state) {
            state = message.state();
            stateText = Clt::stateToText(state);
        }
        rows.add({key.process, key.context, key.tag, stateText, message.sourceTitle(), message.sourceText(),
                  message.sourceAction()},
                 markOf(state));
    }
    return rows;
}

Clt::MessageKey keyOfRow(const Window::MarkedRows &rows, int row)
{
    return {rows.text(row, tagColumn), rows.text(row, contextColumn), rows.text(row, processColumn)};
}

int rowOfKey(const Window::MarkedRows &rows, const Clt::MessageKey &key)
{
    int first = 0;
    int end = rows.size();
    while (first < end) {
        const int middle = first + (end - first) / 2;
        if (keyOfRow(rows, middle) < key)
            first = middle + 1;
        else
            end = middle;
    }
    return first < rows.size() && keyOfRow(rows, first) == key ? first : -1;
}

bool rowMatches(const Window::MarkedRows &rows, int row, const Search &search)
{
    for (int column = firstTextColumn; column < rows.columns(); ++column) {
        if (rows.text(row, column).contains(search.text, search.caseSensitivity))
            return true;
    }
    return false;
}

void setMessageRow(Window::MarkedTableModel &model, int row, const Clt::Message &message)
{
    const Window::RowMark mark = markOf(message.state());
    if (mark != model.rows().mark(row))
        model.setRowText(row, stateColumn, Clt::stateToText(message.state()));
    model.setRowMark(row, mark);
    int column = firstTextColumn;
    for (const Field field : fields)
        model.setRowText(row, column++, fieldOf(message, field));
}

} // namespace MessageWindow
