#pragma once

#include <functional>
#include <utility>

namespace test {

/// Asked at each creation of a thread, on the creating one; false lets the creation fail.
extern std::function<bool()> mayCreateThread;

class NewThreads
{
public:
    explicit NewThreads(std::function<bool()> may) { mayCreateThread = std::move(may); }
    ~NewThreads() { mayCreateThread = nullptr; }
    NewThreads(const NewThreads&) = delete;
    NewThreads& operator=(const NewThreads&) = delete;
};

} // namespace test
