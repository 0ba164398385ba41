#pragma once

#include "window/marked_rows.h"

namespace Clt {
class MessageTable;
}

namespace MessageWindow {

/// The rows of the messages in key order: process, context, tag, and the text of the state; and, for the
/// filter, title, text and action. New and Obsolete messages are marked.
Window::MarkedRows messageRows(const Clt::MessageTable &table);

} // namespace MessageWindow
