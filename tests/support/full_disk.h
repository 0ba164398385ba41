#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of this process grows beyond the most bytes, as on a disk that is full then. For
/// Unix only.
class FullDisk
{
public:
    static constexpr rlim_t mostBytes = 64 * 1024;

    FullDisk()
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{mostBytes, m_before.rlim_max};
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
