#include "scanner/source_scanner.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Scan {

namespace {

// The files of one run, scanned by several threads and taken in order by one.
class FileQueue
{
public:
    FileQueue(const QString &process, const QStringList &fileNames)
        : m_process(process)
        , m_fileNames(fileNames)
        , m_finished(static_cast<std::size_t>(fileNames.size()))
    {
    }

    // A thread's work: batches of files, in list order, until there are none left.
    void work()
    {
        while (const std::optional<Batch> batch = claim()) {
            std::vector<SourceScanner> scanners;
            for (std::size_t index = batch->first; index < batch->end; ++index) {
                scanners.emplace_back(m_process, m_fileNames.at(static_cast<qsizetype>(index)));
                scanners.back().scan();
            }
            finish(*batch, std::move(scanners));
        }
    }

    SourceScanner take(std::size_t index)
    {
        std::unique_lock lock(m_mutex);
        m_finishedSome.wait(lock, [this, index] { return m_finished[index].has_value(); });
        SourceScanner scanner = *std::move(m_finished[index]);
        m_finished[index].reset();
        return scanner;
    }

    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_next = m_finished.size();
    }

private:
    struct Batch
    {
        std::size_t first = 0;
        std::size_t end = 0;
    };

    // Batches are small at the end, so that no thread is waited for long, and few enough before to cost
    // nothing in themselves.
    std::optional<Batch> claim()
    {
        constexpr std::size_t most = 16;
        const std::lock_guard lock(m_mutex);
        if (m_next >= m_finished.size())
            return std::nullopt;
        const std::size_t left = m_finished.size() - m_next;
        const Batch batch{m_next, m_next + std::clamp<std::size_t>(left / most, 1, most)};
        m_next = batch.end;
        return batch;
    }

    void finish(const Batch &batch, std::vector<SourceScanner> scanners)
    {
        const std::lock_guard lock(m_mutex);
        std::move(scanners.begin(), scanners.end(),
                  m_finished.begin() + static_cast<std::ptrdiff_t>(batch.first));
        m_finishedSome.notify_one();
    }

    QString m_process;
    const QStringList &m_fileNames;
    std::mutex m_mutex;
    std::condition_variable m_finishedSome;
    std::vector<std::optional<SourceScanner>> m_finished;
    std::size_t m_next = 0;
};

int threadsFor(qsizetype files, int threadCount)
{
    const int processors = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    const int wanted = threadCount > 0 ? threadCount : processors;
    return static_cast<int>(std::min<qsizetype>(wanted, files));
}

} // namespace

void scanFiles(const QString &process, const QStringList &fileNames, const FileReceiver &receive,
               int threadCount)
{
    FileQueue queue(process, fileNames);
    std::vector<std::thread> threads;
    for (int i = threadsFor(fileNames.size(), threadCount); i > 0; --i)
        threads.emplace_back([&queue] { queue.work(); });
    for (qsizetype index = 0; index < fileNames.size(); ++index) {
        if (receive(index, queue.take(static_cast<std::size_t>(index))) == Continuation::Stop)
            break;
    }
    queue.stop();
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace Scan
