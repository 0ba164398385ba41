#include "window/progress.h"

#include <QCoreApplication>

#include <limits>

namespace Window {

namespace {

// The dialog counts in int, files in 64 bits.
constexpr int steps = 1000;

int stepsOf(qint64 done, qint64 all)
{
    return all > 0 ? static_cast<int>(static_cast<double>(done) / static_cast<double>(all) * steps) : 0;
}

} // namespace

Progress::Progress(QWidget *parent, const QString &title, const QString &text, int delay)
    : m_dialog(text, QCoreApplication::translate("Window::Progress", "Cancel"), 0, steps, parent)
    , m_delay(delay)
{
    m_dialog.setWindowTitle(title);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setAutoClose(false);
    m_dialog.setAutoReset(false);
    // report() shows the dialog after the delay; the dialog itself would estimate the duration.
    m_dialog.setMinimumDuration(std::numeric_limits<int>::max());
    m_sinceBegin.start();
}

bool Progress::report(qint64 done, qint64 all)
{
    constexpr qint64 interval = 40; // milliseconds
    if (isCancelled())
        return false;
    if (m_sinceReport.isValid() && m_sinceReport.elapsed() < interval)
        return true;
    if (!m_dialog.isVisible() && m_sinceBegin.elapsed() >= m_delay)
        m_dialog.show();
    m_dialog.setValue(stepsOf(done, all));
    QCoreApplication::processEvents(m_dialog.isVisible() ? QEventLoop::AllEvents
                                                         : QEventLoop::ExcludeUserInputEvents);
    m_sinceReport.start();
    return !isCancelled();
}

bool ProgressFile::atEnd() const
{
    return m_progress.isCancelled() || error() != NoError || QFile::atEnd();
}

qint64 ProgressFile::readData(char *bytes, qint64 maximum)
{
    return m_progress.report(pos(), size()) ? QFile::readData(bytes, maximum) : -1;
}

} // namespace Window
