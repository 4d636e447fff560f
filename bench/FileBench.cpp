#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "crypto/job/FileJob.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace tessaly;
namespace fs = std::filesystem;

constexpr std::int64_t FileSize = 256 << 20;

class NoObserver final : public crypto::IFileJobObserver
{
public:
    void jobStarted(std::int64_t) override {}
    void jobProgress(std::int64_t, float) override {}
    void jobFlushing() override {}
    bool isJobCancelled() override { return false; }
};

/// A file of 256 MiB in the working folder, so that the disk to measure is the caller's choice.
class Files
{
public:
    Files()
    {
        std::ofstream file(plain, std::ios::binary);
        const std::vector<char> block(1 << 20, 'x');
        for (std::int64_t written = 0; written < FileSize; written += std::ssize(block))
            file.write(block.data(), std::ssize(block));
    }
    ~Files()
    {
        for (const fs::path& path : {plain, encrypted, decrypted})
            fs::remove(path);
    }

    const fs::path plain = "quillet-bench.plain";
    const fs::path encrypted = "quillet-bench.encrypted";
    const fs::path decrypted = "quillet-bench.decrypted";
};

/// The whole job each time: read, derive the key, process, write, wait for the disk.
template <class Cipher>
void measure(benchmark::State& state, Cipher& cipher, const fs::path& input, const fs::path& output)
{
    crypto::FileJobRequest request;
    request.input = input.wstring();
    request.output = output.wstring();
    request.password = SecretText("benchmark");
    NoObserver observer;
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove(output);
        state.ResumeTiming();
        if (!crypto::runFileJob(cipher, request, observer).done())
            state.SkipWithError("failed");
    }
    state.SetBytesProcessed(state.iterations() * FileSize);
}

void fileAes256(benchmark::State& state, bool decrypt)
{
    std::unique_ptr<crypto::ISymmetricEncryptor> encryptor;
    std::unique_ptr<crypto::ISymmetricDecryptor> decryptor;
    if (!cryptopp::CEncryptorFactory().create(1, crypto::DefaultAlgorithmId, &encryptor).ok() ||
        !cryptopp::CDecryptorFactory().create(1, crypto::DefaultAlgorithmId, &decryptor).ok()) {
        state.SkipWithError("no engine");
        return;
    }
    const Files files;
    if (!decrypt) {
        measure(state, *encryptor, files.plain, files.encrypted);
        return;
    }
    crypto::FileJobRequest request;
    request.input = files.plain.wstring();
    request.output = files.encrypted.wstring();
    request.password = SecretText("benchmark");
    NoObserver observer;
    if (!crypto::runFileJob(*encryptor, request, observer).done())
        state.SkipWithError("failed");
    measure(state, *decryptor, files.encrypted, files.decrypted);
}

BENCHMARK_CAPTURE(fileAes256, encrypt, false)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fileAes256, decrypt, true)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
