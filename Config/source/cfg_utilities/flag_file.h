#pragma once

#include <QIODevice>
#include <QString>

/// True when everything that is left to read from the device is white space: blanks, tabs and line ends.
/// False also when reading fails.
bool holdsOnlyWhiteSpace(QIODevice &device);

/// True when the user has left a marker file alone, so that it may go: it holds only white space, or there is
/// none. A file that cannot be read counts as changed.
bool isUnchangedFlagFile(const QString &path);

/// Makes the marker file, which holds an empty line. False when there is one or the disk does not take it.
[[nodiscard]] bool createFlagFile(const QString &path);
