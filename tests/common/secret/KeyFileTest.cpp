#include "common/secret/KeyFile.h"
#include "lib/secret/Hex.h"

#include <gtest/gtest.h>

namespace {

using thisapp::parseKeyFile;

TEST(KeyFile, ReadsBackWhatItWrote)
{
    const tessaly::SecretBytes key{1, 2, 3, 4, 5};
    const tessaly::SecretBytes iv{6, 7};
    const tessaly::SecretText text = thisapp::keyFileText("DES_EDE2", key, iv);
    const auto read = parseKeyFile(text.view());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->algorithm, "DES_EDE2");
    EXPECT_EQ(read->key, key);
    EXPECT_EQ(read->iv, iv);
}

TEST(KeyFile, ToleratesWhatEditorsAndMailDo)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Key: 00 11\nInitialization vector (IV): 22\n", "0011/22"},
        {"\xEF\xBB\xBFQuillet\r\nAlgorithm: A\r\nInitialization vector (IV): 22\r\nKey: 0\r\n 011\r\n",
         "0011/22"},
        {"Initialization vector (IV): 22\nKey: 0011\n\n-- \nNora\n", "0011/22"},
        {"My Key: x\nKey: 0011\nInitialization vector (IV): 22", "0011/22"},
        {"Key: 0011\n", ""},
        {"Key: \nInitialization vector (IV): 22\n", ""},
        {"Key: 0011\nInitialization vector (IV): \n", ""},
        {"Key: 0011\nInitialization vector (IV): 2\n", ""},
        {"0011", ""},
        {"", ""},
    };
    for (const auto& [text, expected] : cases) {
        const auto read = parseKeyFile(text);
        EXPECT_EQ(read ? std::string(tessaly::encodeHex(read->key).view()) + "/" +
                             std::string(tessaly::encodeHex(read->iv).view())
                       : "",
                  expected)
            << text;
    }
}

} // namespace
