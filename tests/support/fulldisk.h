// Simulates a full disk for tests of Linux.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace tests
{
// Makes the disk full while it lives: no file grows.
class FullDisk
{
public:
    FullDisk() : m_signalBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit nothing = {0, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &nothing);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signalBefore);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*m_signalBefore)(int);
    rlimit m_before;
};
}  // namespace tests
