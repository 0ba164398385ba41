#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>

namespace LogSummary {

/// A line of the log, without its line end. The views are into the bytes that were read.
struct LogLine
{
    bool isDated = false;      ///< false for the later lines of an output and the line of the processors
    QByteArrayView stamp = {}; ///< such as "Sat Nov 21 15:09:47 2026"
    qint64 number = 0;         ///< a level, an exit code or an error code
    QByteArrayView text = {};  ///< without the date and the number; the whole line if it is not dated
};

/// Reads a line. One that does not begin with a date and a number is not dated.
LogLine readLogLine(QByteArrayView line);

/// A date of the log as "2026-11-21T15:09:47", the machine's local time; empty if there is no such time.
QString isoTime(QByteArrayView stamp);

/// Splits bytes that arrive in pieces into lines. Lines end with LF or CR LF. Of a longer line only the
/// first maxLineBytes are passed on.
class LineSplitter
{
public:
    static constexpr qsizetype maxLineBytes = 4096;
    using Consumer = std::function<void(QByteArrayView line)>;

    explicit LineSplitter(Consumer consumer);

    void add(QByteArrayView piece);

    /// Passes on what follows the last line end, if anything does.
    void finish();

private:
    void keep(QByteArrayView part);
    void passOn(QByteArrayView line) const;

    Consumer m_consumer;
    QByteArray m_begun; ///< the beginning of a line whose end has not arrived
};

} // namespace LogSummary
