#pragma once

#include "lib/err/ResultCode.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace test {

/// Lets a system call of this thread fail, as no test could bring the system to do: while it lives, the
/// at-th call of that name from now on ends with the error number, or in one of the ways below. `before` is
/// run first. SystemCall.cpp lists the calls that ask.
class SystemCall
{
public:
    static constexpr int Works = 0;
    static constexpr int Short = -1;   ///< one byte is read or written
    static constexpr int Nothing = -2; ///< 0 comes back

    SystemCall(std::string name, int how, int at = 1, std::function<void()> before = {})
        : m_name(std::move(name)), m_how(how), m_at(at), m_before(std::move(before))
    {
        active.push_back(this);
    }
    ~SystemCall() { std::erase(active, this); }
    SystemCall(const SystemCall&) = delete;
    SystemCall& operator=(const SystemCall&) = delete;

    bool happened() const { return m_at <= 0; }

    /// The way that is called "works", "short" or "nothing", or like an error ("EIO").
    static int way(const std::string& name);

    /// What comes back instead of the result of the call that is made now.
    static std::optional<int> instead(std::string_view name);
    static std::size_t cut(std::size_t size) { return isShort ? std::min<std::size_t>(size, 1) : size; }
    static int noted(int handle);

    static thread_local std::vector<std::string> flushed; ///< the paths given to fsync

private:
    static thread_local std::vector<SystemCall*> active;
    static thread_local bool isShort;

    std::string m_name;
    int m_how;
    int m_at;
    std::function<void()> m_before;
};

/// The name of a system error, "5/" and the number of one of the library's, "ok".
std::string told(tessaly::ResultCode result);

} // namespace test
