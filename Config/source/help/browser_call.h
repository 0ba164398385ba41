#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// A program to start.
struct BrowserCall
{
    QString program;
    QStringList arguments;
};

/// The address as it is handed to a browser: percent-encoded, so that it holds no blanks, quotes or
/// backslashes whatever it was made of. A path of this machine becomes a "file:" address. Empty when the
/// address is not valid.
QString encodedAddress(const QString &address);

/// The text with the variables in it ("%ProgramFiles%") replaced by what valueOf answers; a name for which it
/// answers a null string stays as it is.
QString expandVariables(const QString &text, const std::function<QString(const QString &)> &valueOf);

/// The arguments in the command line of a Windows program, as the program itself would read them.
QStringList splitArguments(const QString &commandLine);

/// How to show an address with the browser that the machine records: its command line, which may hold "%1"
/// for the address. There "http://" is left out at the start; without "%1" the whole address is the last
/// argument. The command line is taken apart before the address is put in, so nothing in an address ever
/// parts or adds an argument.
///
/// Nothing when the command line names no program or one that interprets its arguments anew (a command
/// interpreter, a batch file), and when the program would take the address for an option.
std::optional<BrowserCall> browserCall(const QString &commandLine, const QString &encodedAddress);
