#include "message_table_utility/error_message_table_utility.h"
#include "window/window_program.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char *argv[])
{
    return Window::runWindowProgram(argc, argv, u"MessageTableUtility"_s, u"messagetableutility"_s,
                                    [](Window::Dialogs &dialogs, QSettings &settings) {
                                        return std::make_unique<MessageTableUtility>(dialogs, settings);
                                    });
}
