#include "synchronisation/progress_log.h"

#include <QTextStream>

namespace Synchronisation {

ProgressLog::ProgressLog(QTextStream &stream, Progress progress)
    : m_stream(stream)
    , m_progress(progress)
{
}

ProgressLog::~ProgressLog()
{
    clearProgress();
    m_stream.flush();
}

void ProgressLog::writeLine(const QString &line)
{
    clearProgress();
    m_stream << line << '\n';
}

void ProgressLog::showProgress(const QString &text)
{
    constexpr qint64 interval = 100; // milliseconds
    if (m_progress == Progress::Hidden || (m_sinceShown.isValid() && m_sinceShown.elapsed() < interval))
        return;
    clearProgress();
    m_stream << text;
    m_stream.flush();
    m_shownLength = text.size();
    m_sinceShown.start();
}

QTextStream &ProgressLog::stream()
{
    clearProgress();
    return m_stream;
}

// Overwrites with blanks, because not every Windows terminal supports control sequences.
void ProgressLog::clearProgress()
{
    if (m_shownLength == 0)
        return;
    m_stream << '\r' << QString(m_shownLength, u' ') << '\r';
    m_shownLength = 0;
}

} // namespace Synchronisation
