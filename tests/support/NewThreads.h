#pragma once

#include <cerrno>
#include <dlfcn.h>
#include <functional>
#include <pthread.h>
#include <utility>

namespace test {

/// Asked at each creation of a thread, on the creating one; false lets the creation fail.
inline std::function<bool()> mayCreateThread;

class NewThreads
{
public:
    explicit NewThreads(std::function<bool()> may) { mayCreateThread = std::move(may); }
    ~NewThreads() { mayCreateThread = nullptr; }
    NewThreads(const NewThreads&) = delete;
    NewThreads& operator=(const NewThreads&) = delete;
};

} // namespace test

/// Stands before the library's in the whole test program.
extern "C" [[gnu::used]] inline int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                                                   void* (*start)(void*), void* argument)
{
    if (test::mayCreateThread && !test::mayCreateThread())
        return EAGAIN;
    static const auto next =
        reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    return next(thread, attributes, start, argument);
}
