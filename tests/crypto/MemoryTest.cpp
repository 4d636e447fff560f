#include "crypto/Way.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/key/KeyMaterial.h"
#include "crypto/sealed/Argon2.h"
#include "crypto/sealed/SealedFormat.h"
#include "crypto/sealed/SealedKeys.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

using namespace test;

/// What must not be in memory that is given back; null: nobody looks.
std::atomic<const std::vector<Bytes>*> searched = nullptr;
std::atomic<int> found = 0;
/// Allocations until one fails; 0: none does.
std::atomic<int> allocationsLeft = 0;

int leaksOf(const std::vector<Bytes>& secrets, const std::function<void()>& work)
{
    found = 0;
    searched = &secrets;
    work();
    searched = nullptr;
    return found;
}

} // namespace

// This program's own: every block is looked through before it goes back to the system.
void operator delete(void* memory) noexcept
{
    const auto* begin = static_cast<const std::uint8_t*>(memory);
    if (const std::vector<Bytes>* secrets = searched; memory != nullptr && secrets != nullptr)
        for (const Bytes& secret : *secrets) {
            const auto* end = begin + ::malloc_usable_size(memory);
            found += std::search(begin, end, secret.begin(), secret.end()) != end ? 1 : 0;
        }
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
void* operator new(std::size_t size)
{
    void* memory =
        allocationsLeft > 0 && --allocationsLeft == 0 ? nullptr : std::malloc(std::max<std::size_t>(size, 1));
    return memory ? memory : throw std::bad_alloc();
}

namespace {

TEST(Memory, TheSearchFindsWhatIsNotWiped)
{
    const Bytes bytes = noise(16);
    EXPECT_EQ(leaksOf({bytes}, [&] { const Bytes careless = bytes; }), 1);
    EXPECT_EQ(leaksOf({bytes}, [&] { const SecretBytes careful = secret(bytes); }), 0);
}

/// Neither in memory that is given back nor in what is kept for the next bytes.
TEST(Memory, NoWayOfEmptyingASecretLeavesItsBytes)
{
    const std::pair<const char*, std::function<void(SecretBytes&)>> ways[] = {
        {"nothing assigned", [](auto& bytes) { bytes = {}; }},
        {"a list assigned",
         [](auto& bytes) {
             bytes = SecretBytes{1, 2};
         }},
        {"a copy assigned", [other = SecretBytes(3)](auto& bytes) { bytes = other; }},
        {"a shorter one moved there", [](auto& bytes) { bytes = SecretBytes(3); }},
        {"moved away", [](auto& bytes) { const SecretBytes gone = std::move(bytes); }},
        {"cleared", [](auto& bytes) { bytes.clear(); }},
        {"shortened", [](auto& bytes) { bytes.resize(9); }},
        {"grown, then shortened", [](auto& bytes) { bytes.resize(500), bytes.resize(3); }},
        {"popped", [](auto& bytes) { std::ranges::for_each(noise(60), [&](auto) { bytes.pop_back(); }); }},
    };
    const Bytes all = noise(64);
    const Bytes rest(all.begin() + 9, all.end());
    for (const auto& [name, empty] : ways) {
        SecretBytes bytes = secret(all);
        const std::uint8_t* memory = bytes.data();
        EXPECT_EQ(leaksOf({rest}, [&, &way = empty] { way(bytes); }), 0) << name;
        // Kept or given back: secrets have pages of their own, which stay.
        EXPECT_TRUE(std::all_of(memory + 9, memory + 64, [](auto byte) { return byte == 0; })) << name;
    }
    tessaly::SecretText text("a password of some length");
    EXPECT_EQ(leaksOf({{'p', 'a', 's', 's'}}, [&] { text = tessaly::SecretText("short"); }), 0);
}

/// Password, key and plain data stay in no freed block, whether all goes well or not.
TEST(Memory, NoSecretStaysBehind)
{
    const char* const password = "a password of some length";
    const Bytes plain = noise(600000);
    for (const char* name : {"AES-256", "Salsa20-256", "Threefish-1024"})
        for (const int failingWrite : {0, 1, 2}) {
            const Job job(name);
            SecretBytes key;
            ASSERT_TRUE(tessaly::crypto::deriveKey(
                            key, job.algorithm.record.keyLength,
                            tessaly::crypto::AlgInfo().keyDerivationHash(job.algorithm.id), password)
                            .ok());
            const std::vector<Bytes> secrets = {{password, password + 16},
                                                {key.begin(), key.begin() + 16},
                                                {plain.begin() + 1000, plain.begin() + 1016},
                                                {plain.begin() + 590000, plain.begin() + 590016}};
            MemoryInput in(plain);
            MemoryOutput out;
            MemoryOutput decrypted({.failAtCall = failingWrite});
            decrypted.bytes.reserve(plain.size()); // growing would leave copies of its own
            const auto thereAndBack = [&] {
                (void)job.encryptor->runWithPassword(&in, &out, password, false, nullptr, nullptr);
                MemoryInput encrypted(out.bytes);
                (void)job.decryptor->runWithPassword(&encrypted, &decrypted, password, nullptr, nullptr);
            };
            EXPECT_EQ(leaksOf(secrets, thereAndBack), 0);
            EXPECT_EQ(decrypted.bytes == plain, failingWrite == 0);
        }
}

TEST(Memory, NoKeyOfASealedFileStaysBehind)
{
    using namespace tessaly::crypto;
    const Job job("Threefish-1024");
    const std::string password = "a password of some length";
    const SecretBytes salt(SealSaltSize);
    std::vector<Bytes> secrets = {{password.begin(), password.end()}};
    const auto derive = [&](bool isNoted) {
        const auto note = [&](const SecretBytes& bytes) {
            if (isNoted)
                secrets.push_back({bytes.begin(), bytes.begin() + 16});
        };
        for (const bool byPassword : {true, false}) {
            SecretBytes root;
            SealedKeys keys;
            EXPECT_TRUE((byPassword ? argon2id(tessaly::SecretText(password), salt, {1, 64, 4}, root)
                                    : rootOfKeyAndIv(job.key, job.iv, *job.encryptor, salt, root))
                            .ok());
            EXPECT_TRUE(expandRoot(root, *job.encryptor, keys).ok());
            for (const SecretBytes& bytes : {root, keys.cipherKey, keys.iv, keys.tagKey, job.key})
                note(bytes);
        }
    };
    derive(true);
    EXPECT_EQ(secrets.size(), 11U);
    EXPECT_EQ(leaksOf(secrets, [&] { derive(false); }), 0);
}

/// With an allocation failing, every form ends with a result of that stage, and the object can be used again.
TEST(Memory, NoFormLetsAFailedAllocationOut)
{
    const tessaly::ResultCode caught{err::CategoryCryptoPP, 6};
    std::vector<CryptoResult> expected = {err::FirstBufferAllocation, err::SecondBufferAllocation};
    for (const auto stage : {err::KeyingFailed, err::ProcessingFailed})
        expected.emplace_back(caught, err::library(stage));
    const Job job("Threefish-1024");
    std::vector<CryptoResult> seen;
    for (const std::size_t length :
         {std::size_t{300}, std::size_t{600000}}) { // on one thread, and with helpers, which are no must
        const Bytes plain = noise(length);
        MemoryInput first(plain);
        MemoryOutput encrypted;
        ASSERT_TRUE(
            job.encryptor->runWithPassword(&first, &encrypted, "password", false, nullptr, nullptr).ok());
        for (int failing = 2, spared = 0; spared < 2; ++failing) {
            const bool decrypting = failing % 2 == 0;
            MemoryInput in(decrypting ? encrypted.bytes : plain);
            MemoryOutput out;
            Recorder recorder;
            allocationsLeft = failing / 2;
            const CryptoResult result =
                decrypting ? job.decryptor->runWithPassword(&in, &out, "password", &recorder, nullptr)
                           : job.encryptor->runWithPassword(&in, &out, "password", false, &recorder, nullptr);
            spared = allocationsLeft > 0 ? spared + 1 : 0;
            allocationsLeft = 0;
            if (result.ok())
                EXPECT_TRUE(out.bytes == (decrypting ? plain : encrypted.bytes));
            else
                EXPECT_EQ(std::ranges::count(expected, result), 1) << testing::PrintToString(result);
            EXPECT_TRUE(!result.ok() || spared > 0 || length > 300);
            EXPECT_EQ(recorder.calls.starts_with('s'), recorder.calls.ends_with('f'));
            EXPECT_FALSE(job.encryptor->isBusy() || job.decryptor->isBusy());
            seen.push_back(result);
        }
    }
    for (const CryptoResult& result : expected)
        EXPECT_NE(std::ranges::find(seen, result), seen.end());
}

} // namespace
