#pragma once

#include "nvx_util/regular_file.h"
#include "nvx_util/result.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <type_traits>

namespace Window {

/// The progress of a long operation on the window's thread. A dialog shows it once the operation has lasted
/// for the delay; until then the user's input waits. The dialog is closed with this object.
class Progress
{
public:
    static constexpr int usualDelay = 500; // milliseconds

    Progress(QWidget *parent, const QString &title, const QString &text, int delay = usualDelay);

    /// Reports that `done` of `all` is finished and lets the program handle its events, but not more often
    /// than every 40 ms. Returns false once the operation was cancelled.
    bool report(qint64 done, qint64 all);

    void cancel() { m_dialog.cancel(); }
    bool isCancelled() const { return m_dialog.wasCanceled(); }

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceReport;
    int m_delay;
};

/// A regular file that reports how much of it was read. Reading fails once the operation was cancelled.
class ProgressFile : public Nvx::Util::RegularFile
{
public:
    /// The progress must outlive the file.
    ProgressFile(const QString &name, Progress &progress)
        : RegularFile(name)
        , m_progress(progress)
    {
    }

    /// True also after an error or cancellation; otherwise Qt's XML reader would try to read for ever.
    bool atEnd() const override;

protected:
    qint64 readData(char *bytes, qint64 maximum) override;

private:
    Progress &m_progress;
};

/// Opens a file and passes it to `read`, which takes a QIODevice & and returns a Nvx::Util::Result. Fails,
/// with the file's error, if it cannot be opened or read, or the operation was cancelled, even if `read`
/// succeeds: to a reader such a file looks like one that ends there.
template<typename Read>
std::invoke_result_t<Read, QIODevice &> readFile(const QString &fileName, QIODevice::OpenMode mode,
                                                 Progress &progress, Read read)
{
    ProgressFile file(fileName, progress);
    if (!file.open(mode))
        return Nvx::Util::Failure{file.errorString()};
    auto contents = read(file);
    if (progress.isCancelled() || file.error() != QFileDevice::NoError)
        return Nvx::Util::Failure{file.errorString()};
    return contents;
}

} // namespace Window
