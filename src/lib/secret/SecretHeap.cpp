#include "lib/secret/SecretHeap.h"

#include "lib/platform/Memory.h"

#include <memory_resource>
#include <mutex>
#include <new>

namespace tessaly::secretheap {

namespace {

/// A hundred keys; more pages are taken when they are needed.
constexpr std::size_t FirstPages = 64 << 10;

class SecretPages final : public std::pmr::memory_resource
{
    void* do_allocate(std::size_t size, std::size_t) override
    {
        void* pages = platform::mapSecretPages(size);
        return pages != nullptr ? pages : throw std::bad_alloc();
    }
    void do_deallocate(void* pages, std::size_t size, std::size_t) override
    {
        platform::unmapPages(pages, size);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

/// Hands freed blocks out again, and pages never back.
class Pool
{
public:
    void* allocate(std::size_t size)
    {
        const std::scoped_lock lock(m_mutex);
        return m_blocks.allocate(size);
    }
    void deallocate(void* block, std::size_t size)
    {
        const std::scoped_lock lock(m_mutex);
        m_blocks.deallocate(block, size);
    }

private:
    std::mutex m_mutex;
    SecretPages m_pages;
    std::pmr::monotonic_buffer_resource m_rest{FirstPages, &m_pages};
    std::pmr::unsynchronized_pool_resource m_blocks{
        {.max_blocks_per_chunk = 16, .largest_required_pool_block = LargestBlock}, &m_rest};
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
        ::operator delete(block, size);
    else
        pool().deallocate(block, size);
}

} // namespace tessaly::secretheap
