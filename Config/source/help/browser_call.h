#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Nvx::Help {

/// A program to start.
struct BrowserCall
{
    QString program;
    QStringList arguments;
};

/// The address as it is passed to a browser: percent-encoded, so that it never contains blanks, quotes or
/// backslashes. A path of this machine becomes a "file:" address. Empty if the address is not valid.
QString encodedAddress(const QString &address);

/// Replaces each variable, such as "%ProgramFiles%", with what valueOf returns for its name. A variable for
/// which valueOf returns a null string is left as it is.
QString expandVariables(const QString &text, const std::function<QString(const QString &)> &valueOf);

/// Splits a command line into arguments, as a Windows program does with its own.
QStringList splitArguments(const QString &commandLine);

/// How to open an address in the browser with the given command line. The address replaces "%1", without a
/// leading "http://"; if there is no "%1", the complete address becomes the last argument. The command line
/// is split before the address is inserted, so nothing in an address can split or add an argument.
///
/// std::nullopt if the command line contains no program, or one that interprets its arguments (a command
/// interpreter, a batch file), or if the program would treat the address as an option.
std::optional<BrowserCall> browserCall(const QString &commandLine, const QString &encodedAddress);

} // namespace Nvx::Help
