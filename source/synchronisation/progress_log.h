#pragma once

#include <QElapsedTimer>
#include <QString>

class QTextStream;

namespace Error {

/// Writes lines to a stream and, on a terminal, a progress line below them that is updated in place.
class ProgressLog
{
public:
    enum class Progress
    {
        Hidden, ///< the stream is a file or a pipe
        Shown   ///< it is a terminal
    };

    /// The stream lives longer than the log.
    ProgressLog(QTextStream &stream, Progress progress);
    ProgressLog(const ProgressLog &) = delete;
    ProgressLog &operator=(const ProgressLog &) = delete;

    /// Takes the progress line away.
    ~ProgressLog();

    /// Writes a line, in place of the progress line if there is one.
    void writeLine(const QString &line);

    /// Shows the text as the progress line, though not more often than the eye can follow.
    void showProgress(const QString &text);

    /// The stream, with no progress line on it.
    QTextStream &stream();

private:
    void clearProgress();

    QTextStream &m_stream;
    Progress m_progress;
    qsizetype m_shownLength = 0;
    QElapsedTimer m_sinceShown;
};

} // namespace Error
