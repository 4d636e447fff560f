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
    const std::set<std::string_view> recommended = {"AES-256", "Twofish-256", "Serpent-256", "Camellia-256"};
    const auto rows = dataRows("algorithms.txt");
    ASSERT_EQ(rows.size(), catalogue().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const CatalogueEntry& entry = catalogue()[i];
        const Job job(entry);
        const std::initializer_list<const ISymmetricEngine*> engines = {job.encryptor.get(),
                                                                        job.decryptor.get()};
        for (const auto* engine : engines)
            EXPECT_EQ(rows[i], (Row{std::to_string(engine->algorithmId()), std::string(entry.name),
                                    std::to_string(engine->keyLength()),
                                    std::to_string(engine->blockLength()), std::to_string(engine->ivLength()),
                                    std::to_string(AlgInfo().keyDerivationHash(entry.id))}));
        EXPECT_EQ(AlgInfo().record(entry.id), entry.record);
        EXPECT_EQ(entry.record.littleEndian, entry.name == "Panama");
        EXPECT_EQ(entry.record.stream, job.encryptor->blockLength() == 0);
        EXPECT_EQ(entry.record.mode, entry.record.stream ? CipherMode::Stream : CipherMode::Cbc);
        EXPECT_EQ(findAlgorithm(entry.name), &entry);
        EXPECT_EQ(modeName(entry.record.mode), entry.record.stream ? "Stream" : "CBC");
        EXPECT_EQ(entry.advice == AlgAdvice::Recommended, recommended.contains(entry.name)) << entry.name;
        EXPECT_EQ(entry.advice == AlgAdvice::SharedKeyStream, entry.record.stream) << entry.name;
        const bool isLongBlock = entry.advice == AlgAdvice::None || entry.advice == AlgAdvice::Recommended;
        EXPECT_EQ(entry.record.blockLength > 8, isLongBlock) << entry.name;
    }
    EXPECT_EQ(hashName(11), "SHA-256");
    EXPECT_EQ(hashName(21), "SHA3-256");
    EXPECT_EQ(hashName(12), "");
    EXPECT_EQ(findAlgorithm("aes-256")->id, DefaultAlgorithmId);
}

TEST(Catalogue, WhatItDoesNotHoldIsUnknownEverywhere)
{
    const auto expectUnknown = [](std::uint32_t provider, std::uint32_t id) {
        const CryptoResult unknown(err::UnknownAlgorithm);
        Job job("AES-256");
        EXPECT_EQ(CEncryptorFactory().create(provider, id, &job.encryptor), unknown);
        EXPECT_EQ(CDecryptorFactory().create(provider, id, &job.decryptor), unknown);
        EXPECT_TRUE(!job.encryptor && !job.decryptor);
    };
    for (const std::uint32_t id : {0U, 49U, 51U, 103U, 253U, 1013U, 1063U, 4294967295U}) {
        EXPECT_EQ(AlgInfo().record(id), AlgRecord());
        EXPECT_EQ(AlgInfo().keyDerivationHash(id), 0U);
        EXPECT_EQ(displayName(id), "");
        expectUnknown(1, id);
    }
    expectUnknown(10, 252);
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
    std::set<std::string_view> missing;
    for (const CatalogueEntry& algorithm : catalogue())
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
