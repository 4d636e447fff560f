#include "app/commandline/CommandLine.h"

#include <gtest/gtest.h>

using namespace thisapp;

namespace {

struct Case
{
    const char* name;
    QStringList arguments;
    CommandLine expected;
    SlashRule rule = SlashRule::KnownWord;
};

constexpr auto Enc = Operation::Encrypt;
constexpr auto Dec = Operation::Decrypt;

const Case Cases[] = {
    {"nothing", {}, {}},
    {"one existing file is the input", {" here "}, {Enc, false, "here", {}, {}, {}}},
    {"blanks may belong to a file", {" doc"}, {Enc, false, " doc", {}, {}, {}}},
    {"of the output, too", {"-ofile", " doc"}, {Enc, false, {}, " doc", {}, {}}},
    {"one other word may be a file yet", {"there"}, {Enc, false, {}, {}, {}, {}, {"there"}}},
    {"several words are more files",
     {"-decrypt", "-ifile", "a", "b", "-x", "-start", "c d"},
     {Dec, true, "a", {}, {}, {}, {"b", "c d"}}},
    {"one option is still an option", {"-start"}, {Enc, true, {}, {}, {}, {}}},
    {"both signs, any case", {"/IFILE", "x", "-DeCrypt"}, {Dec, false, "x", {}, {}, {}}},
    {"the input stays as it is, the output is trimmed",
     {"-ifile", " x ", "-ofile", " y "},
     {Enc, false, " x ", "y", {}, {}}},
    {"an option takes no option as value", {"-ifile", "-start"}, {Enc, true, {}, {}, {}, {}}},
    {"nor an unknown one", {"-ifile", "-x", "y"}, {Enc, false, {}, {}, {}, {}, {"y"}}},
    {"an option that stands last takes no value", {"-start", "-ofile"}, {Enc, true, {}, {}, {}, {}}},
    {"a word of another length is unknown",
     {"-starts", "-decryp", "here"},
     {Enc, false, {}, {}, {}, {}, {"here"}}},
    {"a value may begin with a slash", {"-ifile", "/tmp/x"}, {Enc, false, "/tmp/x", {}, {}, {}}},
    {"unless it is an option", {"-ifile", "/START", "x"}, {Enc, true, {}, {}, {}, {}, {"x"}}},
    {"elsewhere a slash is always an option", {"-ifile", "/tmp/x"}, {}, SlashRule::AnyWord},
    {"the last one counts",
     {"-decrypt", "-encrypt", "-ifile", "a", "-ifile", "b"},
     {Enc, false, "b", {}, {}, {}}},
    {"names", {"/algorithm", "AES-256", "/library", "Crypto++"}, {Enc, false, {}, {}, "AES-256", "Crypto++"}},
};

TEST(CommandLineTest, ReadsEveryFormOfTheArguments)
{
    for (const Case& c : Cases) {
        SCOPED_TRACE(c.name);
        const CommandLine line = parseCommandLine(c.arguments, c.rule, [](const QString& path) {
            return path == "here" || path == " doc" || path == "doc";
        });
        EXPECT_EQ(line.operation, c.expected.operation);
        EXPECT_EQ(line.start, c.expected.start);
        EXPECT_EQ(line.input, c.expected.input);
        EXPECT_EQ(line.output, c.expected.output);
        EXPECT_EQ(line.algorithm, c.expected.algorithm);
        EXPECT_EQ(line.library, c.expected.library);
        EXPECT_EQ(line.words, c.expected.words);
    }
}

TEST(CommandLineTest, TakesTheNamesAsAPair)
{
    const std::tuple<const char*, const char*, AlgSelection> cases[] = {
        {"AES-128", "", {1, 250}},       {"aes-128", "crypto++", {1, 250}}, {"AES-128", "nobody's", {1, 250}},
        {"AES-128", "1", {1, 250}},      {"AES-128", "10", {10, 250}}, // which provides nothing
        {"no such", "Crypto++", {1, 0}},
    };
    for (const auto& [algorithm, library, pair] : cases) {
        CommandLine line;
        line.algorithm = algorithm;
        line.library = library;
        EXPECT_EQ(namedSelection(line), pair) << algorithm << ' ' << library;
    }
}

} // namespace
