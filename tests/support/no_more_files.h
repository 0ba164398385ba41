#pragma once

#include <sys/resource.h>

/// While it lives, this process can open no file, as when it has opened as many as it may. For Unix only.
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
