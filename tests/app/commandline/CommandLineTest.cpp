#include "app/commandline/CommandLine.h"

#include "support/DataRows.h"

#include <gtest/gtest.h>

using namespace thisapp;

namespace {

std::string understood(const QStringList& arguments, SlashRule rule)
{
    const CommandLine line = parseCommandLine(arguments, rule, [](const QString& path) {
        return QStringList{"here", " doc", "doc"}.contains(path);
    });
    QStringList parts{line.operation == Operation::Encrypt ? "encrypt" : "decrypt"};
    if (line.start)
        parts += "start";
    if (line.input)
        parts += "input " + *line.input;
    if (line.output)
        parts += "output " + *line.output;
    if (!line.algorithm.isEmpty())
        parts += "algorithm " + line.algorithm;
    if (!line.library.isEmpty())
        parts += "library " + line.library;
    for (const QString& word : line.words)
        parts += "word " + word;
    return parts.join('|').toStdString();
}

TEST(CommandLineTest, ReadsEveryFormOfTheArguments)
{
    for (const auto& row : test::dataRows("command_lines.txt")) {
        const QString arguments = QString::fromStdString(row[1]);
        EXPECT_EQ(understood(arguments.split('|', Qt::SkipEmptyParts), SlashRule::KnownWord), row[2])
            << row[0];
    }
    EXPECT_EQ(understood({"-ifile", "/tmp/x"}, SlashRule::AnyWord), "encrypt");
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
