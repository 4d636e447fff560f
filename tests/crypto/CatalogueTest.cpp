#include "crypto/Catalogue.h"
#include "crypto/AlgInfo.h"
#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::crypto;
namespace err = tessaly::err;

TEST(Catalogue, IsTheOnePublished)
{
    const auto rows = test::dataRows("algorithms.txt");
    ASSERT_EQ(rows.size(), catalogue().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const CatalogueEntry& entry = catalogue()[i];
        const AlgRecord& record = entry.record;
        const test::Row row = {
            std::to_string(entry.id),         std::string(entry.name),
            std::to_string(record.keyLength), std::to_string(record.blockLength),
            std::to_string(record.ivLength),  std::to_string(AlgInfo().keyDerivationHash(entry.id))};
        EXPECT_EQ(row, rows[i]);
        EXPECT_EQ(record.stream, record.blockLength == 0);
        EXPECT_EQ(record.mode, record.stream ? CipherMode::Stream : CipherMode::Cbc);
        EXPECT_EQ(record.littleEndian, entry.name == "Panama");
        EXPECT_EQ(AlgInfo().record(entry.id), record);
        EXPECT_EQ(findAlgorithm(entry.name), &entry);
    }
    EXPECT_EQ(findAlgorithm("aes-256")->id, DefaultAlgorithmId);
}

TEST(Catalogue, EveryEntryHasAnEncryptorAndADecryptorOfItsSizes)
{
    const auto expectSizes = [](const CatalogueEntry& entry, const ISymmetricEngine& engine) {
        EXPECT_EQ(engine.algorithmId(), entry.id);
        EXPECT_EQ(engine.keyLength(), entry.record.keyLength);
        EXPECT_EQ(engine.ivLength(), entry.record.ivLength);
        EXPECT_EQ(engine.blockLength(), entry.record.blockLength);
    };
    for (const CatalogueEntry& entry : catalogue()) {
        expectSizes(entry, *test::encryptorOf(entry));
        expectSizes(entry, *test::decryptorOf(entry));
    }
}

TEST(Catalogue, WhatItDoesNotHoldIsUnknownEverywhere)
{
    std::unique_ptr<ISymmetricEncryptor> encryptor;
    std::unique_ptr<ISymmetricDecryptor> decryptor;
    const tessaly::cryptopp::CEncryptorFactory encryptors;
    const tessaly::cryptopp::CDecryptorFactory decryptors;
    const auto expectUnknown = [&](std::uint32_t provider, std::uint32_t id) {
        ASSERT_TRUE(encryptors.create(1, 252, &encryptor).ok());
        ASSERT_TRUE(decryptors.create(1, 252, &decryptor).ok());
        EXPECT_EQ(encryptors.create(provider, id, &encryptor), CryptoResult(err::UnknownAlgorithm));
        EXPECT_EQ(decryptors.create(provider, id, &decryptor), CryptoResult(err::UnknownAlgorithm));
        EXPECT_EQ(encryptor, nullptr);
        EXPECT_EQ(decryptor, nullptr);
    };
    for (const std::uint32_t id : {0U, 1U, 49U, 51U, 103U, 253U, 1013U, 1063U, 4294967295U}) {
        EXPECT_EQ(AlgInfo().record(id), AlgRecord());
        EXPECT_EQ(AlgInfo().keyDerivationHash(id), 0U);
        EXPECT_EQ(displayName(id), "");
        expectUnknown(1, id);
    }
    for (const std::uint32_t provider : {0U, 2U, 10U, 300U})
        expectUnknown(provider, 252);
    EXPECT_EQ(findAlgorithm("AES"), nullptr);
    EXPECT_EQ(findAlgorithm(""), nullptr);
    EXPECT_EQ(encryptors.create(1, 252, nullptr), CryptoResult(err::NullArgument));
    EXPECT_EQ(decryptors.create(9, 9, nullptr), CryptoResult(err::NullArgument));
}

} // namespace
