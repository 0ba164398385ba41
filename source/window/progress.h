#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QProgressDialog>

namespace Window {

/// Shows how far a long piece of work is, on the thread of the window. The dialog comes up once the work has
/// lasted for the delay, and goes with this object. Until then the user's input waits.
class Progress
{
public:
    static constexpr int usualDelay = 500; // milliseconds

    Progress(QWidget *parent, const QString &title, const QString &text, int delay = usualDelay);

    /// Tells that so much of all the work is done, and lets the program handle its events, though not more
    /// often than the eye can follow. False once the work was cancelled.
    bool report(qint64 done, qint64 all);

    void cancel() { m_dialog.cancel(); }
    bool isCancelled() const { return m_dialog.wasCanceled(); }

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceReport;
    int m_delay;
};

/// A file that reports how much of it was read; once the work is cancelled, reading fails.
class ProgressFile : public QFile
{
public:
    /// The progress lives longer than the file.
    ProgressFile(const QString &name, Progress &progress)
        : QFile(name)
        , m_progress(progress)
    {
    }

    /// Also when nothing more can be read: the toolkit's XML reader would ask again for ever.
    bool atEnd() const override;

protected:
    qint64 readData(char *bytes, qint64 most) override;

private:
    Progress &m_progress;
};

} // namespace Window
