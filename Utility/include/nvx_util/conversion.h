#pragma once

#include <QString>

#include <string>

namespace Nvx::Util {

/// The text in the system's 8-bit (ANSI) code page; a character that the code page lacks becomes "?". Use
/// toAnsi (code_page.h) where such a character is an error.
std::string toStdString(const QString &text);

/// Decodes bytes from the system's 8-bit (ANSI) code page.
QString toQString(const std::string &bytes);

} // namespace Nvx::Util
