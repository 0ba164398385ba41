#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Util {

/// The text in the system's ANSI code page, the one of 8-bit text in files; nothing when the code page lacks
/// one of its characters.
std::optional<QByteArray> toAnsi(const QString &text);

/// The text in the system's OEM code page, the one in which the command interpreter reads batch files;
/// nothing when the code page lacks one of its characters.
std::optional<QByteArray> toOem(const QString &text);

/// The text that the bytes are in the OEM code page, in which console programs write into a pipe. Bytes that
/// are no text there become replacement characters.
QString fromOem(const QByteArray &bytes);

} // namespace Nvx::Util
