#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// While it exists, no file of this process can grow beyond a number of bytes, as on a full disk. For Unix
/// only.
class FullDisk
{
public:
    static constexpr qint64 maximumBytes = 64 * 1024;

    explicit FullDisk(qint64 bytes = maximumBytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{static_cast<rlim_t>(bytes), m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        std::signal(SIGXFSZ, m_handler);
        setrlimit(RLIMIT_FSIZE, &m_before);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};
