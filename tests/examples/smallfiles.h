#pragma once

#include <csignal>

#include <sys/resource.h>

/// While it lives, no file grows beyond a size: writing fails in the middle.
class CSmallFiles
{
public:
    explicit CSmallFiles(rlim_t size)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~CSmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    CSmallFiles(const CSmallFiles&) = delete;
    CSmallFiles& operator=(const CSmallFiles&) = delete;

private:
    rlimit m_before{};
    void (*m_signal)(int);
};
