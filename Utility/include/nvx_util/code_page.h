#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

namespace Nvx::Util {

/// The text in the system's ANSI code page; a character that the code page lacks becomes "?". Use toAnsi
/// where such a character is an error.
inline std::string toStdString(const QString &text)
{
    return text.toLocal8Bit().toStdString();
}

/// Decodes bytes from the system's ANSI code page.
inline QString toQString(const std::string &bytes)
{
    return QString::fromLocal8Bit(bytes);
}

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
