#include "message_table_utility/message_rows.h"

#include "clt_message_table.h"

namespace MessageWindow {

namespace {

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

} // namespace MessageWindow
