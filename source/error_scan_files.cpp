#include "error_source_scanner.h"

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

    // A thread's work: files in list order until there are none left.
    void work()
    {
        constexpr std::size_t batch = 8;
        for (;;) {
            const std::optional<std::size_t> first = claim(batch);
            if (!first)
                return;
            const std::size_t end = std::min(*first + batch, m_finished.size());
            for (std::size_t index = *first; index < end; ++index)
                scan(index);
        }
    }

    SourceScanner take(std::size_t index)
    {
        std::unique_lock lock(m_mutex);
        m_finishedOne.wait(lock, [this, index] { return m_finished[index].has_value(); });
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
    std::optional<std::size_t> claim(std::size_t count)
    {
        const std::lock_guard lock(m_mutex);
        if (m_next >= m_finished.size())
            return std::nullopt;
        const std::size_t first = m_next;
        m_next += count;
        return first;
    }

    void scan(std::size_t index)
    {
        SourceScanner scanner(m_process, m_fileNames.at(static_cast<qsizetype>(index)));
        scanner.scan();
        const std::lock_guard lock(m_mutex);
        m_finished[index] = std::move(scanner);
        m_finishedOne.notify_one();
    }

    QString m_process;
    const QStringList &m_fileNames;
    std::mutex m_mutex;
    std::condition_variable m_finishedOne;
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
