#pragma once

#include <QFile>
#include <QString>

namespace Nvx::Util {

/// A log file of UTF-8 lines. Each line has been passed to the operating system when append returns, so it is
/// not lost if the run is killed. A log that is not open drops its lines.
class Log
{
public:
    /// A log in the file with this path. The file is not opened yet.
    explicit Log(const QString &path);

    /// Opens the file for writing. If append is true, lines are added at its end; otherwise its contents are
    /// discarded. False if the file cannot be opened; the log then stays closed.
    bool open(bool append);

    /// Writes the text as one line. Line breaks in it, "\n" or "\r\n", become the operating system's.
    void append(const QString &text);

    void close();

private:
    QFile m_file;
};

} // namespace Nvx::Util
