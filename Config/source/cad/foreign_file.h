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

/// Replaces the file's contents whole or not at all. A file that is write-protected, in use,
/// or reached through a link of someone below an administrator is left as it is, with a diagnostic warning.
void replaceForeignFile(const QString &path, const QByteArray &contents);

/// Searches for a string, ignoring case, in 8-bit text of another program, which is normally in the system's
/// ANSI code page. Bytes that are not valid in it do no harm. A string that the code page cannot encode is
/// never found.
class CaselessSearch
{
public:
    explicit CaselessSearch(const QString &text);

    bool isFoundIn(QByteArrayView bytes) const;

private:
    QString m_text;
    std::optional<QByteArray> m_encoded; ///< m_text in the code page
    bool m_isAscii;
};

} // namespace Nvx::Cad
