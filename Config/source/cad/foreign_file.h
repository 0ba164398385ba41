#pragma once

#include "run/reporter.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Files of the CAD systems, which exist before the product is installed and after it is removed.

namespace Nvx::Cad {

/// The whole file; std::nullopt and a diagnostic warning if not all of it can be read.
std::optional<QByteArray> readForeignFile(const QString &path);

/// The text in the system's ANSI code page, to be added to the file at path. std::nullopt and a line in the
/// log at level 1 if the code page cannot encode it, which only the name of the install folder can cause.
std::optional<QByteArray> toForeignText(Run::Reporter &reporter, const QString &path, const QString &text);

/// Replaces the file's contents whole or not at all. A file that is write-protected or in use is left as it
/// is, with a diagnostic warning.
void replaceForeignFile(const QString &path, const QByteArray &contents);

} // namespace Nvx::Cad
