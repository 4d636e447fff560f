#include "crypto/AlgInfo.h"
#include "crypto/Engine.h"
#include "crypto/KeyMaterial.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

using namespace test;

/// What must not be found in memory that is given back; empty: nobody looks.
std::atomic<const std::vector<Bytes>*> searched = nullptr;
std::atomic<int> found = 0;

void giveBack(void* memory) noexcept
{
    const std::vector<Bytes>* secrets = searched;
    if (memory != nullptr && secrets != nullptr) {
        const auto* begin = static_cast<const std::uint8_t*>(memory);
        const auto* end = begin + ::malloc_usable_size(memory);
        for (const Bytes& secret : *secrets)
            found += std::search(begin, end, secret.begin(), secret.end()) != end ? 1 : 0;
    }
    std::free(memory);
}

} // namespace

// This program's own: every block passes by before it goes back to the system.
void* operator new(std::size_t size)
{
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    giveBack(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    giveBack(memory);
}

namespace {

int leaksOf(const std::vector<Bytes>& secrets, const std::function<void()>& work)
{
    found = 0;
    searched = &secrets;
    work();
    searched = nullptr;
    return found;
}

TEST(Wiping, TheSearchFindsWhatIsNotWiped)
{
    const Bytes secret = noise(16);
    EXPECT_EQ(leaksOf({secret}, [&] { const Bytes careless = secret; }), 1);
    EXPECT_EQ(leaksOf({secret}, [&] { const SecretBytes careful(secret.begin(), secret.end()); }), 0);
}

/// Password, key and plain data stay in no freed block, whether all goes well or not.
TEST(Wiping, NoSecretStaysBehind)
{
    const std::string password = "a password of some length";
    for (const char* name : {"AES-256", "Salsa20-256", "Threefish-1024"})
        for (const int failingWrite : {0, 1, 2}) {
            const CatalogueEntry& algorithm = *tessaly::crypto::findAlgorithm(name);
            const auto encryptor = encryptorOf(algorithm);
            const auto decryptor = decryptorOf(algorithm);
            SecretBytes key;
            ASSERT_TRUE(
                tessaly::crypto::deriveKey(key, algorithm.record.keyLength,
                                           tessaly::crypto::keyDerivationHash(algorithm.record.keyLength, 1),
                                           password.c_str())
                    .ok());
            const Bytes plain = noise(50000);
            const std::vector<Bytes> secrets = {{password.begin(), password.end()},
                                                {key.begin(), key.begin() + 16},
                                                {plain.begin() + 1000, plain.begin() + 1016},
                                                {plain.begin() + 40000, plain.begin() + 40016}};
            MemoryInput in(plain);
            MemoryOutput out;
            MemoryOutput plainOut;
            out.bytes.reserve(100000);
            plainOut.bytes.reserve(100000);
            plainOut.faults.failAtCall = failingWrite;
            EXPECT_EQ(leaksOf(secrets,
                              [&] {
                                  (void)encryptor->encryptWithPassword(&in, &out, password.c_str(), false,
                                                                       nullptr, nullptr);
                              }),
                      0);
            MemoryInput encrypted(out.bytes);
            EXPECT_EQ(leaksOf(secrets,
                              [&] {
                                  (void)decryptor->decryptWithPassword(&encrypted, &plainOut,
                                                                       password.c_str(), nullptr, nullptr);
                              }),
                      0);
            EXPECT_EQ(plainOut.bytes == plain, failingWrite == 0);
        }
}

} // namespace
