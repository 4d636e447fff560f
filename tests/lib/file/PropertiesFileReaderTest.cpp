#include "lib/file/PropertiesFileReader.h"
#include "support/AppVariable.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

namespace {

using namespace tessaly;
using file::internal::PropertiesFileReader;
using Pairs = std::vector<std::pair<std::string, std::string>>;

template <class... More>
Pairs readPairs(const std::wstring& path, const More&... more)
{
    Pairs pairs;
    const auto sink = [&](const auto& key, const auto& value) { pairs.emplace_back(key, value); };
    EXPECT_TRUE(PropertiesFileReader().read(path, sink, more...).ok());
    return pairs;
}

TEST(PropertiesFileReader, ReadsPairs)
{
    const test::TempFolder folder;
    const struct
    {
        const char* text;
        Pairs pairs;
    } cases[] = {
        // Separators and blanks
        {"a=b\na:b\na b\n a\t=  b", {{"a", "b"}, {"a", "b"}, {"a", "b"}, {"a", "b"}}},
        {"a=b  \na==b\na b=c\na", {{"a", "b  "}, {"a", "=b"}, {"a", "b=c"}, {"a", ""}}},
        {"=b", {{"", "b"}}},
        {"a=b\r\nc=d\r\r\n", {{"a", "b"}, {"c", "d\r"}}},
        {"\xC3\xA4=\xC2\xA0\xC3\xB6", {{"\xC3\xA4", "\xC2\xA0\xC3\xB6"}}},
        // Comments and empty lines
        {"#a=b\n \t!c=d\n\n   \r\ne=#f\n", {{"e", "#f"}}},
        // Escapes
        {"k=line1\\nline2\\r\\t\\\\n\\u0041", {{"k", "line1\nline2\rt\\nu0041"}}},
        {"a\\ b\\=c\\:d\\\\=e", {{"a b=c:d\\", "e"}}},
        {"\\#a=\\ b", {{"#a", " b"}}},
        // Continuations
        {"a=b\\\n   c\\  \r\nd\ne=f", {{"a", "bcd"}, {"e", "f"}}},
        {"a=b \\\n c", {{"a", "b c"}}},
        {"a\\\n=b", {{"a", "b"}}},
        {"a=b\\\n# still a comment\n\nc", {{"a", "bc"}}},
        {"a=b\\\\\nc=d", {{"a", "b\\"}, {"c", "d"}}},
        {"a=b\\\\\\\nc=d", {{"a", "b\\\\"}, {"c", "d"}}},
        {"\\\na=b", {{"\\", ""}, {"a", "b"}}},
        {"a=b\\\n\\\nc=d", {{"a", "b\\"}, {"c", "d"}}},
        {"a=b\\", {{"a", "b"}}},
    };
    for (const auto& [text, pairs] : cases)
        EXPECT_EQ(readPairs(folder.write("p", text)), pairs) << text;
}

TEST(PropertiesFileReader, FiltersKeysAndExpandsVariables)
{
    const test::TempFolder folder;
    const auto path = folder.write("p", "a=1\nb=${app} ${no} ${x${app}} ${} } ${app\n");
    const test::AppVariable variables;
    const auto onlyB = [](const std::string& key) { return key == "b"; };
    EXPECT_EQ(readPairs(path, onlyB), (Pairs{{"b", "${app} ${no} ${x${app}} ${} } ${app"}}));
    EXPECT_EQ(readPairs(path, nullptr, &variables),
              (Pairs{{"a", "1"}, {"b", "${app}! ${no} ${x${app}!} ${} } ${app"}}));
}

TEST(PropertiesFileReader, SurvivesRandomBytes)
{
    const test::TempFolder folder;
    std::mt19937 random(1);
    const std::string_view alphabet("\\\\\\\n\n\r =:#!ab${}\0\xEF", 18);
    for (int round = 0; round < 300; ++round) {
        std::string bytes(random() % 400, ' ');
        for (char& c : bytes)
            c = round % 2 == 0 ? alphabet[random() % alphabet.size()] : static_cast<char>(random());
        std::size_t size = 0;
        for (const auto& [key, value] : readPairs(folder.write("p", bytes)))
            size += key.size() + value.size();
        EXPECT_LE(size, bytes.size());
    }
}

} // namespace
