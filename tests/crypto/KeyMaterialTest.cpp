#include "crypto/key/KeyMaterial.h"
#include "crypto/Engine.h"
#include "crypto/key/Hash.h"
#include "crypto/key/RandomBytes.h"
#include "support/DataRows.h"

#include <set>

namespace {

using namespace test;
using tessaly::crypto::deriveKey;

TEST(KeyMaterial, IsWhatAnotherProgramComputes)
{
    for (const Row& row : dataRows("keys.txt")) {
        const auto hashId = static_cast<std::uint32_t>(std::stoul(row.at(0)));
        SecretBytes key = {1, 2, 3};
        EXPECT_EQ(deriveKey(key, static_cast<std::uint32_t>(std::stoul(row.at(1))), hashId,
                            text(fromHex(row.at(2))).append("\0cut", 4).c_str()),
                  CryptoResult());
        EXPECT_EQ(key, secret(fromHex(row.at(3)))) << row[0] << ' ' << row[1] << ' ' << row[2];
    }
}

TEST(KeyMaterial, FailsWithoutAKey)
{
    SecretBytes key;
    for (const std::uint32_t hashId : {0U, 2U, 24U, 1U}) {
        SecretBytes digest = key = {1, 2, 3};
        EXPECT_EQ(deriveKey(key, 32, hashId, "password"), CryptoResult(err::UnknownHash));
        EXPECT_EQ(tessaly::crypto::hash(hashId, "password", 8, digest), CryptoResult(err::UnknownHash));
        EXPECT_TRUE(key.empty() && digest.empty());
    }
    EXPECT_EQ(deriveKey(key, 32, 21, nullptr), CryptoResult(err::NullArgument));
}

TEST(RandomBytes, AreOthersEveryTime)
{
    std::vector<std::set<int>> values(33);
    for (int draw = 0; draw < 200; ++draw) {
        SecretBytes bytes;
        ASSERT_TRUE(tessaly::crypto::randomBytes(values.size(), bytes).ok());
        ASSERT_EQ(bytes.size(), values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i].insert(bytes[i]);
    }
    for (const auto& seen : values)
        EXPECT_GT(seen.size(), 80U);
}

} // namespace
