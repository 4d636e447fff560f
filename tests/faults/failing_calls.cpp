// Preloaded into a program, this makes one of its system calls fail: the FAIL_AT-th call of the function
// FAIL_CALL, counted from main on, ends with the error number FAIL_ERROR, or does nothing and gives 0 when
// that is 0. Before it, the shell command FAIL_FIRST is run. When FAIL_COUNT names a file, the number of
// calls is written there at the end.

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" void* __libc_malloc(std::size_t);

namespace {

const char* wanted = "";
long failAt = 0;
int failError = 0;
long calls = 0;
bool inMain = false;
int (*programMain)(int, char**, char**);

bool isDue(const char* name)
{
    const bool due =
        inMain && std::strcmp(name, wanted) == 0 && __atomic_add_fetch(&calls, 1, __ATOMIC_RELAXED) == failAt;
    const char* first = due ? std::getenv("FAIL_FIRST") : nullptr;
    if (first != nullptr && std::system(first) != 0)
        std::abort();
    return due;
}

template <class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

void writeCount()
{
    inMain = false;
    if (const char* path = std::getenv("FAIL_COUNT"))
        if (std::FILE* file = std::fopen(path, "w")) {
            std::fprintf(file, "%ld\n", calls);
            std::fclose(file);
        }
}

int countingMain(int argc, char** argv, char** environment)
{
    inMain = true;
    const int code = programMain(argc, argv, environment);
    writeCount();
    return code;
}

} // namespace

#define FAIL(name)                                                                                           \
    if (isDue(name)) {                                                                                       \
        errno = failError;                                                                                   \
        return failError == 0 ? 0 : -1;                                                                      \
    }
#define FORWARD(Result, name, parameters, arguments)                                                         \
    extern "C" Result name parameters                                                                        \
    {                                                                                                        \
        FAIL(#name)                                                                                          \
        static auto* const real = next<Result parameters>(#name);                                            \
        return real arguments;                                                                               \
    }

FORWARD(ssize_t, read, (int fd, void* data, std::size_t size), (fd, data, size))
FORWARD(ssize_t, write, (int fd, const void* data, std::size_t size), (fd, data, size))
FORWARD(int, fsync, (int fd), (fd))
FORWARD(int, close, (int fd), (fd))
FORWARD(int, fstat, (int fd, struct stat* info), (fd, info))
FORWARD(int, fstatat, (int folder, const char* name, struct stat* info, int flags),
        (folder, name, info, flags))
FORWARD(off_t, lseek, (int fd, off_t offset, int whence), (fd, offset, whence))
FORWARD(int, linkat, (int from, const char* source, int to, const char* target, int flags),
        (from, source, to, target, flags))
FORWARD(int, renameat, (int from, const char* source, int to, const char* target), (from, source, to, target))
FORWARD(int, renameat2, (int from, const char* source, int to, const char* target, unsigned flags),
        (from, source, to, target, flags))
FORWARD(int, unlinkat, (int folder, const char* name, int flags), (folder, name, flags))
FORWARD(int, fallocate, (int fd, int mode, off_t offset, off_t length), (fd, mode, offset, length))
FORWARD(int, flock, (int fd, int operation), (fd, operation))

extern "C" int open(const char* path, int flags, ...)
{
    FAIL("open")
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    static auto* const real = next<int(const char*, int, ...)>("open");
    return real(path, flags, mode);
}

extern "C" int openat(int folder, const char* path, int flags, ...)
{
    FAIL("openat")
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    static auto* const real = next<int(int, const char*, int, ...)>("openat");
    return real(folder, path, flags, mode);
}

extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* how, void* (*run)(void*),
                              void* argument)
{
    if (isDue("pthread_create"))
        return failError;
    static auto* const real =
        next<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create");
    return real(thread, how, run, argument);
}

extern "C" void* malloc(std::size_t size)
{
    if (isDue("malloc")) {
        errno = failError;
        return nullptr;
    }
    return __libc_malloc(size);
}

extern "C" int __libc_start_main(int (*main)(int, char**, char**), int argc, char** argv, void (*init)(),
                                 void (*fini)(), void (*rtldFini)(), void* stackEnd)
{
    if (const char* name = std::getenv("FAIL_CALL")) {
        wanted = name;
        failAt = std::atol(std::getenv("FAIL_AT"));
        failError = std::atoi(std::getenv("FAIL_ERROR"));
    }
    programMain = main;
    using Start = int(int (*)(int, char**, char**), int, char**, void (*)(), void (*)(), void (*)(), void*);
    return next<Start>("__libc_start_main")(countingMain, argc, argv, init, fini, rtldFini, stackEnd);
}
