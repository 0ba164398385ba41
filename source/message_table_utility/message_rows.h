#pragma once

#include "window/marked_rows.h"

namespace Clt {
class MessageTable;
}

namespace Error {

/// The rows of the messages in key order: process, context, tag, and the state's text. Those that are New or
/// Obsolete are marked so.
Window::MarkedRows rowsOf(const Clt::MessageTable &table);

} // namespace Error
