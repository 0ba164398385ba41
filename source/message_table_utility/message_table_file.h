#pragma once

#include "clt_message_table.h"
#include "window/table_window.h"

namespace Error {

/// What reading a message-table file gave: a table if it was loaded, else why not.
struct MessageTableReading
{
    Window::Loading loading;
    Clt::MessageTable table;
};

/// Reads a message-table file, reporting to the progress how far it is. A file of which only a part could be
/// read counts as failed, for the rest would be lost when the table is saved.
MessageTableReading readMessageTableFile(const QString &fileName, Window::Progress &progress);

} // namespace Error
