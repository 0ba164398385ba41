#pragma once

#include "run/reporter.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Files of the CAD systems, which exist before the product and outlive it.

/// The whole file; nothing, and a diagnostic warning, when not all of it can be read.
std::optional<QByteArray> readForeignFile(const QString &path);

/// The text as it is to be added to the file, in the system's ANSI code page; nothing, and a line in the log
/// at level 1, when the code page cannot write it, which only the name of an install folder can bring about.
std::optional<QByteArray> toForeignText(Reporter &reporter, const QString &path, const QString &text);

/// Makes the bytes the contents of the file, whole or not at all. A file that is write-protected or in use
/// stays as it is, which is a diagnostic warning.
void replaceForeignFile(const QString &path, const QByteArray &contents);
