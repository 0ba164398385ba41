#include "material_name_utility/material_name_utility.h"
#include "window/window_program.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char *argv[])
{
    return Window::runWindowProgram(argc, argv, u"MaterialNameUtility"_s, u"materialnameutility"_s,
                                    [](Window::Dialogs &dialogs, QSettings &settings) {
                                        return std::make_unique<mat::MaterialNameUtility>(dialogs, settings);
                                    });
}
