#include "message_table_utility/error_message_table_utility.h"
#include "window/window_program.h"

int main(int argc, char *argv[])
{
    return Window::runWindowProgram(argc, argv, QStringLiteral("MessageTableUtility"),
                                    QStringLiteral("messagetableutility"),
                                    [](Window::Dialogs &dialogs, QSettings &settings) {
                                        return std::make_unique<MessageTableUtility>(dialogs, settings);
                                    });
}
