#pragma once

#include "crypto/Engine.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace test {

/// Notes every call: s(tarted), p(rogress), f(inished), F(inished after a stop).
class Recorder final : public tessaly::crypto::ICipherCallback
{
public:
    std::string calls;
    std::vector<std::int64_t> processed;
    std::vector<float> percents;
    CryptoResult result;
    std::function<void(char)> onCall = [](char) {};

    void started(void*) override { note('s'); }
    void progress(std::int64_t count, float percent, void*) override
    {
        processed.push_back(count);
        percents.push_back(percent);
        note('p');
    }
    void finished(bool stopped, const CryptoResult& outcome, void*) override
    {
        result = outcome;
        note(stopped ? 'F' : 'f');
    }

private:
    void note(char call)
    {
        calls += call;
        onCall(call);
    }
};

/// One way of one algorithm over some chunks, by default five small ones, whose course is recorded.
struct Way
{
    Way(const char* name, bool encryption, std::uint32_t chunkSize = 60, int count = 5)
        : isEncryption(encryption), job(name), chunks(count)
    {
        job.chunkSize = chunkSize;
        chunk = tessaly::crypto::effectiveChunkSize(chunkSize, job.algorithm.record.blockLength);
        const Bytes data = noise(static_cast<std::size_t>(count - 1) * chunk);
        const Bytes encrypted = job.encrypt(data).bytes;
        input = isEncryption ? data : encrypted;
        output = isEncryption ? encrypted : data;
        job.callback = &recorder;
    }

    Outcome run(const Faults& inputFaults = {}, const Faults& outputFaults = {})
    {
        recorder.calls.clear();
        recorder.processed.clear();
        recorder.percents.clear();
        return process(inputFaults, outputFaults);
    }
    Outcome process(const Faults& inputFaults, const Faults& outputFaults) const
    {
        return isEncryption ? job.encrypt({input, inputFaults}, outputFaults)
                            : job.decrypt({input, inputFaults}, outputFaults);
    }
    void stop() { isEncryption ? job.encryptor->stop() : job.decryptor->stop(); }
    bool isBusy() const { return job.encryptor->isBusy() || job.decryptor->isBusy(); }
    Bytes outputOf(int most) const
    {
        Bytes start = output;
        const std::size_t end = static_cast<std::size_t>(most) * chunk;
        start.resize(std::min(end - (isEncryption || end == 0 ? 0 : 56), output.size()));
        return start;
    }

    bool isEncryption;
    Job job;
    int chunks;
    std::uint64_t chunk; ///< as the engine rounds it
    Bytes input;
    Bytes output;
    Recorder recorder;
};

/// Small ones, which run on the calling thread alone, and ones that are processed in a pipeline: as a chain,
/// and in pieces apart, of block and of stream ciphers.
inline void forEveryWay(const std::function<void(Way&)>& action, bool alsoSmall = true)
{
    const std::pair<const char*, bool> rows[] = {
        {"Sosemanuk-192", true},   {"Blowfish-448", true},   {"Serpent-192", true}, {"Threefish-1024", true},
        {"Threefish-1024", false}, {"Sosemanuk-256", false}, {"XSalsa20", false}};
    for (const auto& [name, isSmall] : rows)
        for (const bool isEncryption : {true, false}) {
            if (isSmall && !alsoSmall)
                continue;
            SCOPED_TRACE(std::string(name) + (isSmall ? ", small," : "") +
                         (isEncryption ? " encrypts" : " decrypts"));
            Way way(name, isEncryption, isSmall ? 60 : tessaly::crypto::DefaultChunkSize, isSmall ? 5 : 10);
            action(way);
        }
}

/// The calls up to a chunk, of which the first reports nothing.
inline std::string courseUpTo(int chunks)
{
    return "s" + std::string(static_cast<std::size_t>(std::max(chunks - 1, 0)), 'p');
}

} // namespace test
