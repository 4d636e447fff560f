#pragma once

#include "lib/platform/Memory.h"
#include "lib/secret/SecretHeap.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <vector>

namespace tessaly {

/// Takes memory from where secrets are, which is wiped when it goes back.
template <class T>
struct SecretAllocator
{
    using value_type = T;

    SecretAllocator() = default;
    template <class U>
    constexpr SecretAllocator(const SecretAllocator<U>&) noexcept
    {
    }

    T* allocate(std::size_t count) { return static_cast<T*>(secretheap::allocate(count * sizeof(T))); }
    void deallocate(T* data, std::size_t count) noexcept { secretheap::deallocate(data, count * sizeof(T)); }

    friend constexpr bool operator==(const SecretAllocator&, const SecretAllocator&) { return true; }
};

/// Keys, IVs, passwords and plaintext. However it is emptied, shortened, moved or assigned over, no
/// byte that it no longer holds stays in memory. Never a string: short strings live inside the
/// object, where no allocator wipes them.
class SecretBytes
{
public:
    using value_type = std::uint8_t;

    SecretBytes() = default;
    explicit SecretBytes(std::size_t count, std::uint8_t value = 0) : m_bytes(count, value) {}
    SecretBytes(std::initializer_list<std::uint8_t> bytes) : m_bytes(bytes) {}
    template <std::input_iterator Iterator>
    SecretBytes(Iterator first, Iterator last) : m_bytes(first, last)
    {
    }
    SecretBytes(const SecretBytes&) = default;
    SecretBytes(SecretBytes&&) noexcept = default;
    ~SecretBytes() = default;
    /// Never into the old storage, whose rest would keep the old bytes.
    SecretBytes& operator=(SecretBytes other) noexcept
    {
        m_bytes.swap(other.m_bytes);
        return *this;
    }

    std::size_t size() const { return m_bytes.size(); }
    bool empty() const { return m_bytes.empty(); }
    std::uint8_t* data() { return m_bytes.data(); }
    const std::uint8_t* data() const { return m_bytes.data(); }
    std::uint8_t* begin() { return data(); }
    std::uint8_t* end() { return data() + size(); }
    const std::uint8_t* begin() const { return data(); }
    const std::uint8_t* end() const { return data() + size(); }
    std::uint8_t& operator[](std::size_t index) { return m_bytes[index]; }
    std::uint8_t operator[](std::size_t index) const { return m_bytes[index]; }
    std::uint8_t& back() { return m_bytes.back(); }

    void reserve(std::size_t count) { m_bytes.reserve(count); }
    void push_back(std::uint8_t byte) { m_bytes.push_back(byte); }
    template <std::input_iterator Iterator>
    void append(Iterator first, Iterator last)
    {
        m_bytes.insert(m_bytes.end(), first, last);
    }
    void resize(std::size_t count)
    {
        if (count < size())
            platform::wipe(data() + count, size() - count);
        m_bytes.resize(count);
    }
    void pop_back() { resize(size() - 1); }
    void clear() { resize(0); }

    friend bool operator==(const SecretBytes&, const SecretBytes&) = default;

private:
    std::vector<std::uint8_t, SecretAllocator<std::uint8_t>> m_bytes;
};

/// A password as the engine takes it: bytes, with a terminating zero that is not counted.
class SecretText
{
public:
    SecretText() = default;
    explicit SecretText(std::string_view text)
    {
        m_bytes.reserve(text.size() + 1);
        m_bytes.append(text.begin(), text.end());
        m_bytes.push_back(0);
    }

    // Without bytes when default-constructed or moved from.
    const char* c_str() const { return m_bytes.empty() ? "" : reinterpret_cast<const char*>(m_bytes.data()); }
    std::size_t size() const { return m_bytes.empty() ? 0 : m_bytes.size() - 1; }
    bool empty() const { return size() == 0; }
    std::string_view view() const { return {c_str(), size()}; }

private:
    SecretBytes m_bytes;
};

} // namespace tessaly
