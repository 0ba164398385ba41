#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Util {

/// The text in the system's ANSI code page, which 8-bit text files use. Empty if the code page lacks one of
/// its characters.
std::optional<QByteArray> toAnsi(const QString &text);

/// The text in the system's OEM code page, in which the command interpreter reads batch files. Empty if the
/// code page lacks one of its characters.
std::optional<QByteArray> toOem(const QString &text);

/// Decodes bytes from the OEM code page, in which console programs write to a pipe. Invalid bytes become
/// replacement characters.
QString fromOem(const QByteArray &bytes);

} // namespace Nvx::Util
