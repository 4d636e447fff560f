#include "crypto/Jobs.h"
#include "crypto/Way.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/job/AlgorithmSearch.h"
#include "crypto/key/KeyMaterial.h"
#include "crypto/sealed/Argon2.h"
#include "crypto/sealed/SealedFormat.h"
#include "crypto/sealed/SealedKeys.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>
#include <set>

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

/// Neither in memory that is given back nor in what is kept for the next bytes.
TEST(Memory, NoWayOfEmptyingASecretLeavesItsBytes)
{
    const std::function<void(SecretBytes&)> ways[] = {
        [](auto& bytes) { bytes = {}; },
        [](auto& bytes) { bytes = SecretBytes(3); },
        [other = SecretBytes(3)](auto& bytes) { bytes = other; },
        [](auto& bytes) { const SecretBytes gone = std::move(bytes); },
        [](auto& bytes) { bytes.clear(); },
        [](auto& bytes) { bytes.resize(9); },
        [](auto& bytes) { bytes.resize(500), bytes.resize(3); },
        [](auto& bytes) {
            while (bytes.size() > 4)
                bytes.pop_back();
        },
    };
    const Bytes all = noise(64);
    const Bytes rest(all.begin() + 9, all.end());
    for (const auto& empty : ways) {
        SCOPED_TRACE(&empty - ways);
        SecretBytes bytes = secret(all);
        const std::uint8_t* memory = bytes.data();
        EXPECT_EQ(leaksOf({rest}, [&] { empty(bytes); }), 0);
        // Kept or given back: secrets have pages of their own, which stay.
        EXPECT_TRUE(std::all_of(memory + 9, memory + 64, [](auto byte) { return byte == 0; }));
    }
    tessaly::SecretText text("a password of some length");
    EXPECT_EQ(leaksOf({{'p', 'a', 's', 's'}}, [&] { text = tessaly::SecretText("short"); }), 0);
    EXPECT_EQ(leaksOf({rest}, [&] { const Bytes careless = all; }), 1);
}

/// Password, key and plain data stay in no freed block, whether all goes well or not.
TEST(Memory, NoSecretStaysBehind)
{
    const char* const password = "a password of some length";
    const Bytes plain = noise(600000);
    const auto start = [](const auto& bytes, std::ptrdiff_t at = 0) {
        return Bytes(bytes.begin() + at, bytes.begin() + at + 16);
    };
    for (const char* name : {"AES-256", "Salsa20-256", "Threefish-1024"})
        for (const int failingWrite : {0, 1, 2}) {
            const Job job(name);
            const auto hashId = tessaly::crypto::AlgInfo().keyDerivationHash(job.algorithm.id);
            SecretBytes key;
            ASSERT_TRUE(tessaly::crypto::deriveKey(key, job.encryptor->keyLength(), hashId, password).ok());
            const std::vector<Bytes> secrets = {start(std::string_view(password)), start(key),
                                                start(plain, 1000), start(plain, 590000)};
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
        for (const bool byPassword : {true, false}) {
            SecretBytes root;
            SealedKeys keys;
            EXPECT_TRUE((byPassword ? argon2id(tessaly::SecretText(password), salt, {1, 64, 4}, root)
                                    : rootOfKeyAndIv(job.key, job.iv, *job.encryptor, salt, root))
                            .ok());
            EXPECT_TRUE(expandRoot(root, *job.encryptor, keys).ok());
            for (const SecretBytes& bytes : {root, keys.cipherKey, keys.iv, keys.tagKey, job.key})
                if (isNoted)
                    secrets.emplace_back(bytes.begin(), bytes.begin() + 16);
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
    const CryptoResult expected[] = {err::FirstBufferAllocation,
                                     err::SecondBufferAllocation,
                                     {caught, err::library(err::KeyingFailed)},
                                     {caught, err::library(err::ProcessingFailed)}};
    std::set<std::ptrdiff_t> seen;
    const Job job("Threefish-1024");
    for (const std::size_t length : {300UL, 600000UL}) { // on one thread, and with helpers, which are no must
        const Bytes plain = noise(length);
        MemoryInput first(plain);
        MemoryOutput encrypted;
        ASSERT_TRUE(
            job.encryptor->runWithPassword(&first, &encrypted, "password", false, nullptr, nullptr).ok());
        for (const bool decrypting : {true, false})
            for (int failing = 1, left = 0; left == 0; ++failing) {
                MemoryInput in(decrypting ? encrypted.bytes : plain);
                MemoryOutput out;
                Recorder recorder;
                allocationsLeft = failing;
                const CryptoResult result =
                    decrypting
                        ? job.decryptor->runWithPassword(&in, &out, "password", &recorder, nullptr)
                        : job.encryptor->runWithPassword(&in, &out, "password", false, &recorder, nullptr);
                left = allocationsLeft.exchange(0);
                if (!result.ok())
                    seen.insert(std::ranges::find(expected, result) - expected);
                EXPECT_TRUE(!result.ok() || out.bytes == (decrypting ? plain : encrypted.bytes));
                EXPECT_TRUE(!result.ok() || left > 0 || length > 300);
                EXPECT_EQ(recorder.calls.starts_with('s'), recorder.calls.ends_with('f'));
                EXPECT_FALSE(job.encryptor->isBusy() || job.decryptor->isBusy());
            }
    }
    EXPECT_EQ(seen, (std::set<std::ptrdiff_t>{0, 1, 2, 3})) << "4: another result";
}

using SearchMemory = Jobs;

/// An algorithm that could not be tried for want of memory is not one that does not fit.
TEST_F(SearchMemory, TellsAFailedAllocationFromAWrongAlgorithm)
{
    byPassword = false;
    job.emplace("Threefish-1024");
    folder.write("plain", "content");
    for (const bool seal : {false, true}) {
        ASSERT_TRUE(encrypt("plain", "encrypted", seal).done());
        for (int failing = 1, left = 0; left == 0; ++failing) {
            const auto made = request("encrypted", "out");
            allocationsLeft = failing;
            const auto search = tessaly::crypto::findAlgorithm(made, watch);
            left = allocationsLeft.exchange(0);
            EXPECT_EQ(search.result.ok(), search.algorithmId == job->algorithm.id);
            EXPECT_NE(search.result, CryptoResult(err::CheckValueDiffers)) << failing;
        }
    }
}

} // namespace
