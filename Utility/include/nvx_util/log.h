#pragma once

#include <QFile>
#include <QString>

namespace Nvx::Util {

/// A log file of UTF-8 lines. Each line is on its way to the disk when append returns, so that a run that is
/// killed leaves what it did. A log that is not open drops its lines.
class Log
{
public:
    /// A log on the file of that path; nothing is opened yet.
    explicit Log(const QString &path);

    /// Opens the file for writing, behind what it holds when append is true, else in its place. False, and
    /// the log stays closed, when the file cannot be opened.
    bool open(bool append);

    /// Writes the text as one line. Line breaks in it, "\n" or "\r\n", become those of the machine.
    void append(const QString &text);

    void close();

private:
    QFile m_file;
};

} // namespace Nvx::Util
