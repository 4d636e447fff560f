#pragma once

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <dlfcn.h>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace test {

/// Lets a system call of this thread fail, as no test could bring the system to do: while it lives, the
/// at-th call of that name from now on ends with the error number, or in one of the ways below. `before` is
/// run first.
class SystemCall
{
public:
    static constexpr int Works = 0;
    static constexpr int Short = -1;   ///< one byte is read or written
    static constexpr int Nothing = -2; ///< 0 comes back

    SystemCall(std::string_view name, int how, int at = 1, std::function<void()> before = {})
        : m_name(name), m_how(how), m_at(at), m_before(std::move(before))
    {
        active.push_back(this);
    }
    ~SystemCall() { std::erase(active, this); }
    SystemCall(const SystemCall&) = delete;
    SystemCall& operator=(const SystemCall&) = delete;

    bool happened() const { return m_at <= 0; }

    /// What comes back instead of the result of the call that is made now.
    static std::optional<int> instead(std::string_view name)
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
    static std::size_t cut(std::size_t size) { return isShort ? std::min<std::size_t>(size, 1) : size; }
    static int noted(int handle)
    {
        flushed.push_back(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(handle)));
        return handle;
    }

    inline static thread_local std::vector<std::string> flushed; ///< the paths given to fsync

private:
    inline static thread_local std::vector<SystemCall*> active;
    inline static thread_local bool isShort = false;

    std::string_view m_name;
    int m_how;
    int m_at;
    std::function<void()> m_before;
};

} // namespace test

/// Stands before the library's in the whole test program. Under a name of its own in C++, where that of the
/// call may stand for more.
#define TEST_SYSTEM_CALL(Result, name, parameters, arguments)                                                \
    extern "C" Result test_##name parameters __asm__(#name);                                                 \
    extern "C" [[gnu::used]] inline Result test_##name parameters                                            \
    {                                                                                                        \
        if (const auto instead = test::SystemCall::instead(#name))                                           \
            return *instead;                                                                                 \
        static const auto next = reinterpret_cast<Result(*) parameters>(::dlsym(RTLD_NEXT, #name));          \
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
TEST_SYSTEM_CALL(int, fallocate, (int fd, int mode, off_t offset, off_t length), (fd, mode, offset, length))
TEST_SYSTEM_CALL(ssize_t, getrandom, (void* data, std::size_t size, unsigned flags), (data, size, flags))
TEST_SYSTEM_CALL(int, flock, (int fd, int operation), (fd, operation))

#undef TEST_SYSTEM_CALL
