#include "crypto/Engine.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/key/Hash.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace test;
using tessaly::crypto::AlgAdvice;
using tessaly::crypto::AlgInfo;
using tessaly::crypto::CipherMode;
using tessaly::crypto::hashName;
using tessaly::cryptopp::CDecryptorFactory;
using tessaly::cryptopp::CEncryptorFactory;

bool isShortBlock(AlgAdvice advice)
{
    return advice != AlgAdvice::None && advice != AlgAdvice::Recommended &&
           advice != AlgAdvice::SharedKeyStream;
}

TEST(Catalogue, IsTheOnePublished)
{
    const std::set<std::string_view> recommended = {"AES-256", "Twofish-256", "Serpent-256", "Camellia-256"};
    const auto rows = dataRows("algorithms.txt");
    ASSERT_EQ(rows.size(), tessaly::crypto::catalogue().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const CatalogueEntry& entry = tessaly::crypto::catalogue()[i];
        const auto expectRow = [&](const tessaly::crypto::ISymmetricEngine& engine) {
            const Row row = {
                std::to_string(engine.algorithmId()), std::string(entry.name),
                std::to_string(engine.keyLength()),   std::to_string(engine.blockLength()),
                std::to_string(engine.ivLength()),    std::to_string(AlgInfo().keyDerivationHash(entry.id))};
            EXPECT_EQ(row, rows[i]);
        };
        const Job job(entry);
        expectRow(*job.encryptor);
        expectRow(*job.decryptor);
        EXPECT_EQ(AlgInfo().record(entry.id), entry.record);
        EXPECT_EQ(entry.record.littleEndian, entry.name == "Panama");
        EXPECT_EQ(entry.record.stream, job.encryptor->blockLength() == 0);
        EXPECT_EQ(entry.record.mode, entry.record.stream ? CipherMode::Stream : CipherMode::Cbc);
        EXPECT_EQ(findAlgorithm(entry.name), &entry);
        EXPECT_EQ(modeName(entry.record.mode), entry.record.stream ? "Stream" : "CBC");
        EXPECT_EQ(entry.advice == AlgAdvice::Recommended, recommended.contains(entry.name)) << entry.name;
        EXPECT_EQ(entry.advice == AlgAdvice::SharedKeyStream, entry.record.stream) << entry.name;
        EXPECT_EQ(entry.record.blockLength == 8, isShortBlock(entry.advice)) << entry.name;
    }
    EXPECT_EQ(hashName(11), "SHA-256");
    EXPECT_EQ(hashName(21), "SHA3-256");
    EXPECT_EQ(hashName(12), "");
    EXPECT_EQ(findAlgorithm("aes-256")->id, tessaly::crypto::DefaultAlgorithmId);
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
        EXPECT_EQ(AlgInfo().record(id), tessaly::crypto::AlgRecord());
        EXPECT_EQ(AlgInfo().keyDerivationHash(id), 0U);
        EXPECT_EQ(tessaly::crypto::displayName(id), "");
        expectUnknown(1, id);
    }
    expectUnknown(10, 252);
    EXPECT_EQ(findAlgorithm("AES"), nullptr);
}

} // namespace
