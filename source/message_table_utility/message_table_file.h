#pragma once

#include "clt_message_table.h"
#include "nvx_util/result.h"

namespace Window {
class Progress;
}

namespace MessageWindow {

/// Reads a message table file and reports the progress. Fails if only a part could be read, because the rest
/// would be lost when the table is saved. The error text is for the user.
Nvx::Util::Result<Clt::MessageTable> readMessageTableFile(const QString &fileName,
                                                          Window::Progress &progress);

} // namespace MessageWindow
