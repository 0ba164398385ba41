#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QSettings;

namespace Window {

class Dialogs;
class TableWindow;

using WindowMaker = std::function<std::unique_ptr<TableWindow>(Dialogs &dialogs, QSettings &settings)>;

/// Opens the file that the arguments name, without the program's own name, once the event loop runs; nothing
/// when they name none.
void openNamedFile(TableWindow &window, const QStringList &arguments);

/// Runs a program of one table window to its end and answers its exit code: in the language of the system, as
/// far as the catalogue beside the program has it; with the settings of that program.
int runWindowProgram(int argc, char *argv[], const QString &programName, const QString &catalogue,
                     const WindowMaker &makeWindow);

} // namespace Window
