#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CSymmetricEngine.h"
#include "crypto/cryptopp/Ciphers.h"
#include "lib/secret/Secret.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

// The cipher alone, in memory and on one core: what every other part of an encryption is measured by.

namespace {

using namespace tessaly;
using namespace tessaly::cryptopp;
using namespace tessaly::cryptopp::ciphers;
using Clock = std::chrono::steady_clock;

constexpr std::uint64_t Chunk = 32768;

template <class Algorithm, std::uint32_t Key, std::uint32_t Iv, std::uint32_t Block>
std::unique_ptr<crypto::ICipherEngine> make(bool encrypts)
{
    if (encrypts)
        return std::make_unique<CSymmetricEngine<typename Algorithm::Encryption, 0, Key, Iv, Block, 0>>();
    return std::make_unique<CSymmetricEngine<typename Algorithm::Decryption, 0, Key, Iv, Block, 0>>();
}

std::unique_ptr<crypto::ICipherEngine> engineOf(std::uint32_t algorithmId, bool encrypts)
{
    switch (algorithmId) {
#define BLOCK_CIPHER(id, name, cipher, key, block, advice)                                                   \
    case id:                                                                                                 \
        return make<CBC_Mode<cipher>, key, block, block>(encrypts);
#define STREAM_CIPHER(id, name, cipher, key, iv, advice)                                                     \
    case id:                                                                                                 \
        return make<cipher, key, iv, 0>(encrypts);
#include "crypto/catalogue/algorithms.def"
    default:
        return nullptr;
    }
}

/// Seconds for `count` bytes.
double measure(crypto::ICipherEngine& engine, std::uint64_t count)
{
    const SecretBytes key(engine.keyLength(), 0x5A);
    const SecretBytes iv(engine.ivLength());
    SecretBytes in(Chunk, 0xA5);
    SecretBytes out(Chunk);
    if (!engine.setKey(key, iv).ok())
        std::abort();
    const auto start = Clock::now();
    for (std::uint64_t done = 0; done < count; done += Chunk)
        if (!engine.process(out.data(), in.data(), Chunk).ok())
            std::abort();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    const auto* algorithm = argc == 4 ? crypto::findAlgorithm(std::string_view(argv[2])) : nullptr;
    const bool encrypts = argc == 4 && std::string_view(argv[1]) == "encrypt";
    if (algorithm == nullptr || (!encrypts && std::string_view(argv[1]) != "decrypt")) {
        std::fputs("usage: cipher_speed encrypt|decrypt ALGORITHM BYTES\nprints the seconds\n", stderr);
        return 2;
    }
    const auto engine = engineOf(algorithm->id, encrypts);
    std::printf("%.4f\n", measure(*engine, std::strtoull(argv[3], nullptr, 10)));
    return 0;
}
