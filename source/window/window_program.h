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

/// Opens the first of the arguments, which do not include the program's name, as soon as the event loop runs.
void openNamedFile(TableWindow &window, const QStringList &arguments);

/// Runs a program with one table window and returns its exit code. The program uses the system's language if
/// the catalogue next to the program is available in it, and settings of its own.
int runWindowProgram(int argc, char *argv[], const QString &programName, const QString &catalogue,
                     const WindowMaker &makeWindow);

} // namespace Window
