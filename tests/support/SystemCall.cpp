#include "support/SystemCall.h"

#include "lib/err/ErrorCodes.h"
#include "support/NextFunction.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>

namespace test {

thread_local std::vector<std::string> SystemCall::flushed;
thread_local std::vector<SystemCall*> SystemCall::active;
thread_local bool SystemCall::isShort = false;

std::optional<int> SystemCall::instead(std::string_view name)
{
    int how = Works;
    for (SystemCall* call : std::vector(active))
        if (call->m_name == name && --call->m_at == 0) {
            how = call->m_how;
            if (const auto before = std::exchange(call->m_before, {}))
                before();
        }
    isShort = how == Short;
    if (how > 0)
        errno = how;
    return how > 0 ? std::optional(-1) : how == Nothing ? std::optional(0) : std::nullopt;
}

int SystemCall::noted(int handle)
{
    flushed.push_back(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(handle)));
    return handle;
}

int SystemCall::way(const std::string& name)
{
    for (int number = 1; number < 134; ++number)
        if (const char* known = ::strerrorname_np(number); known && name == known)
            return number;
    return name == "short" ? Short : name == "nothing" ? Nothing : Works;
}

std::string told(tessaly::ResultCode result)
{
    if (result.ok())
        return "ok";
    return result.category == tessaly::err::CategorySystem
               ? ::strerrorname_np(static_cast<int>(result.code))
               : std::to_string(result.category) + '/' + std::to_string(result.code);
}

} // namespace test

/// Stands before the library's in the whole test program. Under a name of its own in C++, where that of the
/// call may stand for more.
#define TEST_SYSTEM_CALL(Result, name, parameters, arguments)                                                \
    extern "C" Result test_##name parameters __asm__(#name);                                                 \
    extern "C" Result test_##name parameters                                                                 \
    {                                                                                                        \
        if (const auto instead = test::SystemCall::instead(#name))                                           \
            return *instead;                                                                                 \
        static const auto next = test::nextFunction<Result parameters>(#name);                               \
        return next arguments;                                                                               \
    }

TEST_SYSTEM_CALL(ssize_t, read, (int fd, void* data, std::size_t size),
                 (fd, data, test::SystemCall::cut(size)))
TEST_SYSTEM_CALL(ssize_t, write, (int fd, const void* data, std::size_t size),
                 (fd, data, test::SystemCall::cut(size)))
TEST_SYSTEM_CALL(int, open, (const char* name, int flags, mode_t mode), (name, flags, mode))
TEST_SYSTEM_CALL(int, openat, (int folder, const char* name, int flags, mode_t mode),
                 (folder, name, flags, mode))
TEST_SYSTEM_CALL(int, close, (int fd), (fd))
TEST_SYSTEM_CALL(off_t, lseek, (int fd, off_t offset, int whence), (fd, offset, whence))
TEST_SYSTEM_CALL(int, fstat, (int fd, struct stat* info), (fd, info))
TEST_SYSTEM_CALL(int, fsync, (int fd), (test::SystemCall::noted(fd)))
TEST_SYSTEM_CALL(int, linkat, (int from, const char* old, int to, const char* name, int flags),
                 (from, old, to, name, flags))
TEST_SYSTEM_CALL(int, renameat2, (int from, const char* old, int to, const char* name, unsigned flags),
                 (from, old, to, name, flags))
TEST_SYSTEM_CALL(int, unlinkat, (int folder, const char* name, int flags), (folder, name, flags))
TEST_SYSTEM_CALL(int, fallocate, (int fd, int mode, off_t offset, off_t length), (fd, mode, offset, length))
TEST_SYSTEM_CALL(ssize_t, getrandom, (void* data, std::size_t size, unsigned flags), (data, size, flags))
TEST_SYSTEM_CALL(int, flock, (int fd, int operation), (fd, operation))

#undef TEST_SYSTEM_CALL
