#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace test {

/// Remembers, as long as it lives, what was overwritten.
class Wiped
{
public:
    Wiped() { s_current = this; }
    ~Wiped() { s_current = nullptr; }
    Wiped(const Wiped&) = delete;
    Wiped& operator=(const Wiped&) = delete;

    /// Of a block of its own.
    bool contains(const void* data, std::size_t size) const
    {
        return std::ranges::find(m_blocks, std::string(static_cast<const char*>(data), size)) !=
               m_blocks.end();
    }

    static void note(const void* data, std::size_t size)
    {
        if (s_current != nullptr)
            s_current->m_blocks.emplace_back(static_cast<const char*>(data), size);
    }

private:
    static inline Wiped* s_current = nullptr;
    std::vector<std::string> m_blocks;
};

} // namespace test

/// Stands before the library's in the whole test program.
extern "C" [[gnu::used]] inline void explicit_bzero(void* data, std::size_t size) noexcept
{
    test::Wiped::note(data, size);
    std::memset(data, 0, size);
    asm volatile("" : : "r"(data) : "memory");
}
