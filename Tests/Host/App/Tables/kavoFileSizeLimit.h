#pragma once

#include <csignal>
#include <sys/resource.h>

/// Limits the size of the files that this process writes, while the object lives. Writing more
/// fails with EFBIG.
class kavoFileSizeLimit
{
public:
    explicit kavoFileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit limit { bytes, m_limit.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~kavoFileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

    kavoFileSizeLimit(const kavoFileSizeLimit &) = delete;
    kavoFileSizeLimit &operator=(const kavoFileSizeLimit &) = delete;

private:
    void (*m_handler)(int);
    rlimit m_limit;
};
