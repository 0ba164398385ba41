#pragma once

#include <QElapsedTimer>
#include <QString>

class QTextStream;

namespace Synchronisation {

/// Writes lines to a stream and, on a terminal, a progress line below them that is updated in place.
class ProgressLog
{
public:
    enum class Progress
    {
        Hidden, ///< for a file or a pipe
        Shown   ///< for a terminal
    };

    /// The stream must outlive the log.
    ProgressLog(QTextStream &stream, Progress progress);
    ProgressLog(const ProgressLog &) = delete;
    ProgressLog &operator=(const ProgressLog &) = delete;

    /// Erases the progress line.
    ~ProgressLog();

    /// Writes a line, which replaces the progress line if there is one.
    void writeLine(const QString &line);

    /// Shows the text as the progress line, at most ten times a second.
    void showProgress(const QString &text);

    /// The stream, after erasing the progress line.
    QTextStream &stream();

private:
    void clearProgress();

    QTextStream &m_stream;
    Progress m_progress;
    qsizetype m_shownLength = 0;
    QElapsedTimer m_sinceShown;
};

} // namespace Synchronisation
