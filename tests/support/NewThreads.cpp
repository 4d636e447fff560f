#include "support/NewThreads.h"

#include "support/NextFunction.h"

#include <cerrno>
#include <pthread.h>

std::function<bool()> test::mayCreateThread;

/// Stands before the library's in the whole test program.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                              void* argument)
{
    if (test::mayCreateThread && !test::mayCreateThread())
        return EAGAIN;
    static const auto next = test::nextFunction<decltype(pthread_create)>("pthread_create");
    return next(thread, attributes, start, argument);
}
