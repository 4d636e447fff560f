#pragma once

#include "lib/platform/Memory.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace tessaly {

/// Hands memory back only after wiping it.
template <class T>
struct WipingAllocator
{
    using value_type = T;

    WipingAllocator() = default;
    template <class U>
    constexpr WipingAllocator(const WipingAllocator<U>&) noexcept
    {
    }

    T* allocate(std::size_t count) { return std::allocator<T>().allocate(count); }
    void deallocate(T* data, std::size_t count) noexcept
    {
        platform::wipe(data, count * sizeof(T));
        std::allocator<T>().deallocate(data, count);
    }

    friend constexpr bool operator==(const WipingAllocator&, const WipingAllocator&) { return true; }
};

/// Keys, IVs, passwords and plaintext. A vector, never a string: short strings live inside the
/// object, where no allocator wipes them.
using SecretBytes = std::vector<std::uint8_t, WipingAllocator<std::uint8_t>>;

/// A password as the engine takes it: bytes, with a terminating zero that is not counted.
class SecretText
{
public:
    SecretText() = default;
    explicit SecretText(std::string_view text) : m_bytes(text.begin(), text.end())
    {
        m_bytes.push_back('\0');
    }

    // Without bytes when default-constructed or moved from.
    const char* c_str() const { return m_bytes.empty() ? "" : m_bytes.data(); }
    std::size_t size() const { return m_bytes.empty() ? 0 : m_bytes.size() - 1; }
    bool empty() const { return size() == 0; }
    std::string_view view() const { return {c_str(), size()}; }

private:
    std::vector<char, WipingAllocator<char>> m_bytes;
};

} // namespace tessaly
