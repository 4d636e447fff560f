// Preloaded into a program, this runs it again and again, and makes one of its system calls fail in each run.
// At main, or where the program calls serveFaults, the process becomes a server: for each line that it reads
// from the file descriptor FAULTS_FROM, as described at Order, it forks, lets the child go on as the program,
// and writes to the descriptor FAULTS_TO how the child ended and how many calls it made. The child's standard
// streams are files of those names in the folder above.
// The functions that FAULTS_WITHOUT names are not there at all: "O_TMPFILE", "exchange", "noreplace", "link";
// a "flush" never ends, except on the first thread, where the toolkit makes some. With that alone the program
// runs as usual.

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

namespace {

/// What happens at the call instead of, or beside, an error of that number.
enum Way {
    Nothing = 0,
    Short = -1,
    KillBefore = -2,
    KillAfter = -3,
    FromThereOn = -4,
    Done = -5,
    ShortThenError = -6 ///< as of a disk with a bad place: the call after it is to go on there
};

/// In words: "CALL AT ERROR THREADS COMMAND". The AT-th call of the group CALL ("any" is each of them) ends
/// with the error number ERROR, or in that Way. Allocations count on all THREADS, or on the "workers" only.
/// The shell command, up to the end of the line, is run just before.
struct Order
{
    char call[32] = "";
    long at = 0;
    int error = 0;
    bool workersOnly = false;
    char command[512] = "";
};

constexpr unsigned SecondsToHang = 14; ///< before a window gives up a disk that does not answer

Order order;
bool isOn = false;
long* calls = nullptr; ///< shared between server and child
int (*programMain)(int, char**, char**);

[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

bool isCounted(const char* call)
{
    if (!isOn || (order.workersOnly && ::gettid() == ::getpid()))
        return false;
    return std::strcmp(call, order.call) == 0 ||
           (std::strcmp(order.call, "any") == 0 && std::strcmp(call, "malloc") != 0);
}

bool isDue(const char* call)
{
    if (!isCounted(call))
        return false;
    const long number = __atomic_add_fetch(calls, 1, __ATOMIC_RELAXED);
    if ((order.error == FromThereOn && number > order.at) ||
        (order.error == ShortThenError && number == order.at + 1))
        return true;
    if (number != order.at)
        return false;
    if (order.command[0] != '\0') {
        isOn = false;
        ::unsetenv("LD_PRELOAD");
        if (std::system(order.command) != 0)
            std::abort();
        isOn = true;
    }
    if (order.error == KillBefore)
        die();
    return order.error != Done;
}

template <class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// What a call gives that the file system does not have.
bool isWithout(const char* function, int error)
{
    const char* missing = isOn ? std::getenv("FAULTS_WITHOUT") : nullptr;
    if (missing == nullptr || std::strstr(missing, function) == nullptr)
        return false;
    errno = error;
    return true;
}

/// The error of a call that is due.
int dueError()
{
    if (order.error == KillAfter)
        die();
    if (order.error == ShortThenError)
        return EIO;
    return order.error == FromThereOn ? ENOMEM : order.error;
}

/// A call that fails with this value and an error number, or gives nothing.
template <class Call, class Result = std::invoke_result_t<Call>>
Result failing(const char* name, Call real, std::type_identity_t<Result> failed)
{
    if (!isDue(name))
        return real();
    if (order.error == KillAfter)
        real();
    errno = dueError();
    return order.error == Nothing ? Result{} : failed;
}

/// A thread of the toolkit wakes another one up by such a file.
bool isEvent(int fd)
{
    static auto* const real = next<int(int, struct stat*)>("fstat");
    struct stat info = {};
    return real(fd, &info) == 0 && (info.st_mode & S_IFMT) == 0;
}

/// One that moves bytes, and may move only some of them.
template <class Call>
ssize_t moving(const char* name, int fd, std::size_t size, Call real)
{
    if (isOn && isEvent(fd))
        return real(size);
    static std::atomic<bool> wasShort = false;
    if (order.error != Short && (order.error != ShortThenError || wasShort))
        return failing(
            name, [&] { return real(size); }, -1);
    const bool isShort = isDue(name) && size > 1;
    wasShort = wasShort || isShort;
    return real(isShort ? size / 2 : size);
}

bool readOrder(std::FILE* from)
{
    char line[640];
    char threads[16] = "";
    if (std::fgets(line, sizeof line, from) == nullptr)
        return false;
    order = {};
    if (std::sscanf(line, "%31s %ld %d %15s %511[^\n]", order.call, &order.at, &order.error, threads,
                    order.command) < 4)
        return false;
    order.workersOnly = std::strcmp(threads, "workers") == 0;
    return true;
}

void reopen(int handle, const char* path, int flags)
{
    const int file = ::open(path, flags, 0600);
    ::dup2(file, handle);
    ::close(file);
}

void becomeProgram()
{
    reopen(STDIN_FILENO, "../stdin", O_RDONLY);
    reopen(STDOUT_FILENO, "../stdout", O_WRONLY | O_CREAT | O_TRUNC);
    reopen(STDERR_FILENO, "../stderr", O_WRONLY | O_CREAT | O_TRUNC);
    ::alarm(SecondsToHang);
    isOn = true;
}

/// Returns in the children only.
void serve()
{
    const int to = std::atoi(std::getenv("FAULTS_TO"));
    std::FILE* from = ::fdopen(std::atoi(std::getenv("FAULTS_FROM")), "r");
    calls = static_cast<long*>(
        ::mmap(nullptr, sizeof *calls, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    while (readOrder(from)) {
        *calls = 0;
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(to);
            ::close(::fileno(from));
            return becomeProgram();
        }
        int status = -1;
        ::waitpid(child, &status, 0);
        ::dprintf(to, "%d %ld\n", status, *calls);
    }
    ::_exit(0);
}

int servingMain(int argc, char** argv, char** environment)
{
    if (std::getenv("FAULTS_FROM") == nullptr)
        isOn = true;
    else if (std::getenv("FAULTS_LATER") == nullptr)
        serve();
    const int code = programMain(argc, argv, environment);
    isOn = false;
    return code;
}

} // namespace

/// For a program that has much to do before it comes to what is to be tried.
extern "C" void serveFaults()
{
    if (std::getenv("FAULTS_FROM") != nullptr)
        serve();
}

/// Calls fail no more.
extern "C" void endFaults()
{
    isOn = false;
}

#define FORWARD_OR(failed, group, Result, name, parameters, arguments)                                       \
    extern "C" Result name parameters                                                                        \
    {                                                                                                        \
        static auto* const real = next<Result parameters>(#name);                                            \
        return failing(                                                                                      \
            group, [&] { return real arguments; }, failed);                                                  \
    }
#define FORWARD(group, Result, name, parameters, arguments)                                                  \
    FORWARD_OR(-1, group, Result, name, parameters, arguments)

FORWARD_OR(nullptr, "open", std::FILE*, fopen, (const char* path, const char* mode), (path, mode))
FORWARD_OR(nullptr, "readdir", dirent*, readdir, (DIR * folder), (folder))
FORWARD_OR(MAP_FAILED, "mmap", void*, mmap,
           (void* at, std::size_t size, int access, int flags, int fd, off_t offset),
           (at, size, access, flags, fd, offset))
FORWARD("close", int, close, (int fd), (fd))
FORWARD("stat", int, stat, (const char* name, struct stat* info), (name, info))
FORWARD("stat", int, fstat, (int fd, struct stat* info), (fd, info))
FORWARD("stat", int, fstatat, (int folder, const char* name, struct stat* info, int flags),
        (folder, name, info, flags))
FORWARD("stat", int, access, (const char* name, int mode), (name, mode))
FORWARD("lseek", off_t, lseek, (int fd, off_t offset, int whence), (fd, offset, whence))
FORWARD("rename", int, renameat, (int from, const char* source, int to, const char* target),
        (from, source, to, target))
FORWARD("unlink", int, unlink, (const char* name), (name))
FORWARD("unlink", int, unlinkat, (int folder, const char* name, int flags), (folder, name, flags))
FORWARD("fallocate", int, fallocate, (int fd, int mode, off_t offset, off_t length),
        (fd, mode, offset, length))
FORWARD("flock", int, flock, (int fd, int operation), (fd, operation))
FORWARD("fchmod", int, fchmod, (int fd, mode_t mode), (fd, mode))
FORWARD("poll", int, poll, (pollfd * streams, nfds_t count, int wait), (streams, count, wait))
FORWARD("getrandom", ssize_t, getrandom, (void* data, std::size_t size, unsigned flags), (data, size, flags))
FORWARD("getrandom", int, getentropy, (void* data, std::size_t size), (data, size))

#define FORWARD_FLUSH(name)                                                                                  \
    extern "C" int name(int fd)                                                                              \
    {                                                                                                        \
        static auto* const real = next<int(int)>(#name);                                                     \
        while (::gettid() != ::getpid() && isWithout("flush", EINTR))                                        \
            ::pause();                                                                                       \
        return failing(                                                                                      \
            "fsync", [&] { return real(fd); }, -1);                                                          \
    }
FORWARD_FLUSH(fsync)
FORWARD_FLUSH(fdatasync)

#define FORWARD_OPEN(name, first, ...)                                                                       \
    extern "C" int name(first const char* path, int flags, ...)                                              \
    {                                                                                                        \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = va_arg(rest, mode_t);                                                            \
        va_end(rest);                                                                                        \
        if ((flags & O_TMPFILE) == O_TMPFILE && isWithout("O_TMPFILE", EOPNOTSUPP))                          \
            return -1;                                                                                       \
        static auto* const real = next<int(first const char*, int, ...)>(#name);                             \
        return failing(                                                                                      \
            "open", [&] { return real(__VA_ARGS__ path, flags, mode); }, -1);                                \
    }
#define NONE
#define FOLDER int folder,
FORWARD_OPEN(open, NONE)
FORWARD_OPEN(open64, NONE)
FORWARD_OPEN(openat, FOLDER, folder, )

extern "C" ssize_t read(int fd, void* data, std::size_t size)
{
    static auto* const real = next<ssize_t(int, void*, std::size_t)>("read");
    if (order.error == Nothing && fd == STDIN_FILENO) // the end of what comes, as it may be at any place
        return real(fd, data, size);
    return moving("read", fd, size, [&](std::size_t some) { return real(fd, data, some); });
}

extern "C" ssize_t write(int fd, const void* data, std::size_t size)
{
    static auto* const real = next<ssize_t(int, const void*, std::size_t)>("write");
    return moving("write", fd, size, [&](std::size_t some) { return real(fd, data, some); });
}

extern "C" int linkat(int from, const char* source, int to, const char* target, int flags)
{
    static auto* const real = next<int(int, const char*, int, const char*, int)>("linkat");
    if (isWithout("link", EPERM))
        return -1;
    return failing(
        "link", [&] { return real(from, source, to, target, flags); }, -1);
}

extern "C" int renameat2(int from, const char* source, int to, const char* target, unsigned flags)
{
    static auto* const real = next<int(int, const char*, int, const char*, unsigned)>("renameat2");
    if (isWithout(flags == RENAME_EXCHANGE ? "exchange" : "noreplace", EINVAL))
        return -1;
    return failing(
        "rename", [&] { return real(from, source, to, target, flags); }, -1);
}

/// One byte of an unbuffered file, which the library reads by itself.
extern "C" int fgetc(std::FILE* file)
{
    static auto* const real = next<int(std::FILE*)>("fgetc");
    if (order.error == Short || order.error == Nothing || order.error == EINTR || !isDue("read"))
        return real(file);
    if (dueError() > 0)
        file->_flags |= 0x20; // _IO_ERR_SEEN
    return EOF;
}

extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* how, void* (*run)(void*),
                              void* argument) noexcept
{
    static auto* const real =
        next<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create");
    return isDue("pthread_create") ? dueError() : real(thread, how, run, argument);
}

#define FORWARD_MALLOC(name, parameters, arguments)                                                          \
    extern "C" void* __libc_##name parameters;                                                               \
    extern "C" void* name parameters noexcept                                                                \
    {                                                                                                        \
        return failing(                                                                                      \
            "malloc", [&] { return __libc_##name arguments; }, nullptr);                                     \
    }

FORWARD_MALLOC(malloc, (std::size_t size), (size))
FORWARD_MALLOC(calloc, (std::size_t count, std::size_t size), (count, size))
FORWARD_MALLOC(realloc, (void* former, std::size_t size), (former, size))
FORWARD_MALLOC(memalign, (std::size_t alignment, std::size_t size), (alignment, size))

extern "C" void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return memalign(alignment, size);
}

extern "C" int posix_memalign(void** made, std::size_t alignment, std::size_t size) noexcept
{
    *made = memalign(alignment, size);
    return *made == nullptr ? ENOMEM : 0;
}

extern "C" int __libc_start_main(int (*main)(int, char**, char**), int argc, char** argv, void (*init)(),
                                 void (*fini)(), void (*rtldFini)(), void* stackEnd)
{
    programMain = main;
    using Start = int(int (*)(int, char**, char**), int, char**, void (*)(), void (*)(), void (*)(), void*);
    return next<Start>("__libc_start_main")(servingMain, argc, argv, init, fini, rtldFini, stackEnd);
}
