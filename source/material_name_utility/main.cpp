#include "material_name_utility/mat_material_name_utility.h"
#include "window/window_program.h"

int main(int argc, char *argv[])
{
    return Window::runWindowProgram(argc, argv, QStringLiteral("MaterialNameUtility"),
                                    QStringLiteral("materialnameutility"),
                                    [](Window::Dialogs &dialogs, QSettings &settings) {
                                        return std::make_unique<mat::MaterialNameUtility>(dialogs, settings);
                                    });
}
