#include "crypto/Engine.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/key/Hash.h"
#include "support/DataRows.h"

#include <set>

namespace {

using namespace test;
using namespace tessaly::crypto;
using namespace tessaly::cryptopp;

TEST(Catalogue, IsTheOnePublished)
{
    const char* const advice[] = {"None",       "Recommended",     "SharedKeyStream",
                                  "ShortBlock", "TwoKeyTripleDes", "TripleDes",
                                  "ShortKey",   "RelatedKeys",     "AttacksPublished"};
    const auto rows = dataRows("algorithms.txt");
    ASSERT_EQ(rows.size(), catalogue().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const CatalogueEntry& entry = catalogue()[i];
        const Job job(entry);
        for (const auto* engine :
             std::initializer_list<const ISymmetricEngine*>{job.encryptor.get(), job.decryptor.get()})
            EXPECT_EQ(rows[i], (Row{std::to_string(engine->algorithmId()), std::string(entry.name),
                                    std::to_string(engine->keyLength()),
                                    std::to_string(engine->blockLength()), std::to_string(engine->ivLength()),
                                    std::to_string(AlgInfo().keyDerivationHash(entry.id)),
                                    advice[static_cast<std::size_t>(entry.advice)]}));
        EXPECT_EQ(AlgInfo().record(entry.id), entry.record);
        EXPECT_EQ(entry.record.littleEndian, entry.name == "Panama");
        EXPECT_EQ(entry.record.stream, job.encryptor->blockLength() == 0);
        EXPECT_EQ(modeName(entry.record.mode), entry.record.stream ? "Stream" : "CBC");
        EXPECT_EQ(findAlgorithm(entry.name), &entry);
    }
    EXPECT_EQ(hashName(11), "SHA-256");
    EXPECT_EQ(hashName(21), "SHA3-256");
    EXPECT_EQ(hashName(12), "");
    EXPECT_EQ(findAlgorithm("aes-256")->id, DefaultAlgorithmId);
}

TEST(Catalogue, WhatItDoesNotHoldIsUnknownEverywhere)
{
    const CryptoResult unknown(err::UnknownAlgorithm);
    for (const std::uint32_t id : {0U, 49U, 51U, 103U, 253U, 1013U, 1063U, 4294967295U}) {
        EXPECT_EQ(AlgInfo().record(id), AlgRecord());
        EXPECT_EQ(AlgInfo().keyDerivationHash(id), 0U);
        EXPECT_EQ(displayName(id), "");
        Job job("AES-256");
        for (const auto& [provider, there] : {std::pair(1U, id), std::pair(10U, DefaultAlgorithmId)}) {
            EXPECT_EQ(CEncryptorFactory().create(provider, there, &job.encryptor), unknown);
            EXPECT_EQ(CDecryptorFactory().create(provider, there, &job.decryptor), unknown);
            EXPECT_TRUE(!job.encryptor && !job.decryptor);
        }
    }
    EXPECT_EQ(findAlgorithm("AES"), nullptr);
}

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
    std::set<std::string> seen;
    for (const Row& row : dataRows("vectors")) {
        seen.insert(row.at(0));
        const Bytes expected = fromHex(row.at(3));
        EXPECT_EQ(enciphered(*findAlgorithm(row[0]), fromHex(row[1]), fromHex(row[2]), expected.size()),
                  expected)
            << row[0] << ' ' << row[1];
    }
    EXPECT_EQ(seen.size(), catalogue().size());
}

} // namespace
