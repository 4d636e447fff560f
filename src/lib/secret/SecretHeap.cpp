#include "lib/secret/SecretHeap.h"

#include "lib/platform/Memory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <mutex>
#include <new>
#include <utility>

namespace tessaly::secretheap {

namespace {

constexpr std::size_t SmallestBlock = 32;
constexpr std::size_t PagesAtOnce = 64 << 10; ///< bytes; as much as many systems let a program lock

/// Blocks of each power of two, cut from pages that never go back; freed ones are handed out again. The
/// standard library's pool does the same, but crashes when it has run out of memory before.
class Pool
{
public:
    void* allocate(std::size_t size)
    {
        const std::size_t block = blockFor(size);
        const std::scoped_lock lock(m_mutex);
        Free*& first = listOf(block);
        if (first == nullptr)
            return cut(block);
        Free* const taken = first;
        first = taken->next;
        return taken;
    }
    void deallocate(void* data, std::size_t size)
    {
        const std::scoped_lock lock(m_mutex);
        Free*& first = listOf(blockFor(size));
        first = new (data) Free{first};
    }

private:
    struct Free
    {
        Free* next;
    };

    static std::size_t blockFor(std::size_t size) { return std::bit_ceil(std::max(size, SmallestBlock)); }
    Free*& listOf(std::size_t block)
    {
        return m_lists[static_cast<std::size_t>(std::countr_zero(block / SmallestBlock))];
    }
    void* cut(std::size_t block)
    {
        if (m_left < block) {
            void* const pages = platform::mapSecretPages(PagesAtOnce);
            if (pages == nullptr)
                throw std::bad_alloc();
            m_next = static_cast<std::byte*>(pages);
            m_left = PagesAtOnce;
        }
        m_left -= block;
        return std::exchange(m_next, m_next + block);
    }

    std::mutex m_mutex;
    std::array<Free*, std::bit_width(LargestBlock / SmallestBlock)> m_lists{};
    std::byte* m_next = nullptr;
    std::size_t m_left = 0; ///< bytes
};

/// Outlives every secret, those of other static objects, too.
Pool& pool()
{
    static Pool& theOne = *new Pool;
    return theOne;
}

} // namespace

void* allocate(std::size_t size)
{
    return size > LargestBlock ? ::operator new(size) : pool().allocate(size);
}

void deallocate(void* block, std::size_t size) noexcept
{
    if (block == nullptr)
        return;
    platform::wipe(block, size);
    if (size > LargestBlock)
        ::operator delete(block);
    else
        pool().deallocate(block, size);
}

} // namespace tessaly::secretheap
