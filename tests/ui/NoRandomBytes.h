#pragma once

#include <sys/resource.h>

/// As long as it lives no file can be opened, the random device included. No event loop may run.
class NoRandomBytes
{
public:
    NoRandomBytes()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoRandomBytes() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    NoRandomBytes(const NoRandomBytes&) = delete;
    NoRandomBytes& operator=(const NoRandomBytes&) = delete;

private:
    rlimit m_before{};
};
