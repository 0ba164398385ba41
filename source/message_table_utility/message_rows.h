#pragma once

#include "clt_message.h"
#include "message_table_utility/message_change.h"
#include "window/marked_rows.h"

namespace Clt {
class MessageTable;
}

namespace Window {
class MarkedTableModel;
}

namespace MessageWindow {

/// The rows of the messages in key order: process, context, tag, and the text of the state; and, for the
/// filter, title, text and action. New and Obsolete messages are marked.
Window::MarkedRows messageRows(const Clt::MessageTable &table);

/// The key of the message in a row.
Clt::MessageKey keyOfRow(const Window::MarkedRows &rows, int row);

/// The number of the row with the key; -1 if there is none.
int rowOfKey(const Window::MarkedRows &rows, const Clt::MessageKey &key);

/// True if the message in a row matches the search (message_change.h).
bool rowMatches(const Window::MarkedRows &rows, int row, const Search &search);

/// Updates state, mark and texts of the row of a message.
void setMessageRow(Window::MarkedTableModel &model, int row, const Clt::Message &message);

} // namespace MessageWindow
