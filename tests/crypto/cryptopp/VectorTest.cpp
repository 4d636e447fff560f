#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace test;

/// The start of what the cipher alone makes of `input`. For a block cipher that is one block: the IV
/// is chosen so that CBC feeds it to the cipher. For a stream cipher it is the IV, and the answer
/// the start of the key stream.
Bytes enciphered(const CatalogueEntry& algorithm, const Bytes& key, const Bytes& input, std::size_t count)
{
    Job job(algorithm);
    Bytes plainFile = headerOf(algorithm, count);
    plainFile.resize(plainFile.size() + count + input.size());
    job.key = secret(key);
    job.iv = secret(algorithm.record.stream ? input : input ^ plainFile);
    Bytes file = job.encrypt(Bytes(count)).bytes;
    if (algorithm.record.stream)
        file = file ^ plainFile;
    file.resize(count);
    return file;
}

/// Rows: algorithm, key, then plain block and cipher block, or IV and the start of the key stream.
TEST(Vectors, EveryVectorHoldsAndEveryAlgorithmHasOne)
{
    std::set<std::string_view> missing;
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue())
        missing.insert(algorithm.name);
    for (const Row& row : dataRows("vectors")) {
        missing.erase(row.at(0));
        const Bytes expected = fromHex(row.at(3));
        EXPECT_EQ(enciphered(*findAlgorithm(row[0]), fromHex(row[1]), fromHex(row[2]), expected.size()),
                  expected)
            << row[0] << ' ' << row[1];
    }
    EXPECT_EQ(missing, std::set<std::string_view>());
}

} // namespace
