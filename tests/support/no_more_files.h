#pragma once

#include <sys/resource.h>

/// While it exists, this process cannot open a file, as if it had reached its limit of open files. For Unix
/// only.
class NoMoreFiles
{
public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    NoMoreFiles(const NoMoreFiles &) = delete;
    NoMoreFiles &operator=(const NoMoreFiles &) = delete;
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    rlimit m_before{};
};
