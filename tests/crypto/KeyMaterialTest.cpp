#include "crypto/KeyMaterial.h"
#include "crypto/Engine.h"
#include "crypto/Hash.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::crypto;
using tessaly::SecretBytes;
namespace err = tessaly::err;

SecretBytes derived(std::uint32_t length, std::uint32_t hashId, const std::string& password)
{
    SecretBytes key = {1, 2, 3};
    EXPECT_EQ(deriveKey(key, length, hashId, password.c_str()), CryptoResult());
    return key;
}

TEST(KeyMaterial, IsWhatAnotherProgramComputes)
{
    for (const test::Row& row : test::dataRows("keys.txt")) {
        const auto password = test::fromHex(row.at(2));
        EXPECT_EQ(derived(static_cast<std::uint32_t>(std::stoul(row[1])),
                          static_cast<std::uint32_t>(std::stoul(row[0])), {password.begin(), password.end()}),
                  test::secret(test::fromHex(row.at(3))))
            << row[0] << ' ' << row[1] << ' ' << row[2];
    }
}

TEST(KeyMaterial, RoundsSeeTheFirst125BytesAlone)
{
    const std::string start(125, 'p');
    const SecretBytes one = derived(128, 23, start + "one");
    const SecretBytes two = derived(128, 23, start + "two");
    EXPECT_NE(SecretBytes(one.begin(), one.begin() + 64), SecretBytes(two.begin(), two.begin() + 64));
    EXPECT_EQ(SecretBytes(one.begin() + 64, one.end()), SecretBytes(two.begin() + 64, two.end()));
    EXPECT_NE(derived(128, 23, start), derived(128, 23, start.substr(1)));
}

TEST(KeyMaterial, EndsAtAZeroByte)
{
    EXPECT_EQ(derived(128, 23, std::string("pass\0word", 9)), derived(128, 23, "pass"));
}

TEST(KeyMaterial, FailsWithoutAKey)
{
    for (const std::uint32_t hashId : {0U, 2U, 24U, 1U}) {
        SecretBytes key = {1, 2, 3};
        EXPECT_EQ(deriveKey(key, 32, hashId, "password"), CryptoResult(err::UnknownHash));
        EXPECT_TRUE(key.empty());
    }
    SecretBytes key = {1, 2, 3};
    EXPECT_EQ(deriveKey(key, 32, 21, nullptr), CryptoResult(err::NullArgument));
    EXPECT_TRUE(key.empty());
}

TEST(Hash, DigestsHaveTheLengthsOfTheTable)
{
    for (const std::uint32_t id : {11U, 20U, 21U, 22U, 23U}) {
        SecretBytes digest;
        EXPECT_TRUE(hash(id, "abc", 3, digest).ok());
        EXPECT_EQ(digest.size(), digestLength(id)) << id;
    }
    EXPECT_EQ(digestLength(0), 0U);
    EXPECT_EQ(digestLength(304), 32U);
}

} // namespace
