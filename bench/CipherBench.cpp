#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CCipherFactory.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace tessaly;
using Bytes = std::vector<std::uint8_t>;

class Source final : public io::IStreamBytes
{
public:
    explicit Source(const Bytes& bytes) : m_bytes(bytes) {}

    bool isAtStart() const override { return m_position == 0; }
    bool isAtEnd() const override { return m_position == size(); }
    std::int64_t size() const override { return std::ssize(m_bytes); }
    ResultCode lastError() const override { return {}; }
    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override
    {
        countRead = std::min(count, size() - m_position);
        std::memcpy(buffer, m_bytes.data() + m_position, static_cast<std::size_t>(countRead));
        m_position += countRead;
        return countRead > 0;
    }

private:
    const Bytes& m_bytes;
    std::int64_t m_position = 0;
};

class Sink final : public io::OStreamBytes
{
public:
    Bytes bytes;

    ResultCode lastError() const override { return {}; }
    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override
    {
        const auto* begin = static_cast<const std::uint8_t*>(buffer);
        bytes.insert(bytes.end(), begin, begin + count);
        return count;
    }
};

/// Calls `process` with the input and an empty output again and again.
template <class Process>
void measure(benchmark::State& state, const Bytes& input, Process process)
{
    Sink sink;
    sink.bytes.reserve(input.size() + 1024);
    for (auto _ : state) {
        Source source(input);
        sink.bytes.clear();
        if (!process(source, sink).ok())
            state.SkipWithError("failed");
    }
    state.SetBytesProcessed(state.iterations() * std::ssize(input));
}

void measureAlgorithm(benchmark::State& state, const crypto::CatalogueEntry& algorithm, bool encrypt)
{
    std::unique_ptr<crypto::ISymmetricEncryptor> encryptor;
    std::unique_ptr<crypto::ISymmetricDecryptor> decryptor;
    if (!cryptopp::CEncryptorFactory().create(1, algorithm.id, &encryptor).ok() ||
        !cryptopp::CDecryptorFactory().create(1, algorithm.id, &decryptor).ok()) {
        state.SkipWithError("no engine");
        return;
    }
    const SecretBytes key(algorithm.record.keyLength, 0x5A);
    const auto encryption = [&](Source& in, Sink& out) {
        return encryptor->run(&in, &out, key, false, nullptr, nullptr);
    };
    const auto decryption = [&](Source& in, Sink& out) {
        return decryptor->run(&in, &out, key, nullptr, nullptr);
    };
    const Bytes plain(1 << 20, 0xA5);
    if (encrypt) {
        measure(state, plain, encryption);
        return;
    }
    Source source(plain);
    Sink encrypted;
    if (!encryption(source, encrypted).ok())
        state.SkipWithError("failed");
    measure(state, encrypted.bytes, decryption);
}

/// One benchmark a direction for every algorithm of the catalogue, over 1 MiB in memory.
const bool Registered = [] {
    for (const crypto::CatalogueEntry& algorithm : crypto::catalogue())
        for (const bool encrypt : {true, false})
            benchmark::RegisterBenchmark(
                ((encrypt ? "memory/encrypt/" : "memory/decrypt/") + std::string(algorithm.name)).c_str(),
                [&algorithm, encrypt](benchmark::State& state) {
                    measureAlgorithm(state, algorithm, encrypt);
                });
    return true;
}();

} // namespace
