#pragma once

#include <QString>

#include <string>

namespace Nvx::Util {

/// The text in the system's 8-bit (ANSI) code page; a character that the code page lacks becomes "?". Ask
/// toAnsi (code_page.h) where that must not happen unseen.
std::string toStdString(const QString &text);

/// The text that the bytes are in the system's 8-bit (ANSI) code page.
QString toQString(const std::string &bytes);

} // namespace Nvx::Util
