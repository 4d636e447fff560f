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
    for (const auto& row : test::dataRows("command_line_names.txt")) {
        CommandLine line;
        line.algorithm = QString::fromStdString(row[0]);
        line.library = QString::fromStdString(row[1]);
        const AlgSelection pair = namedSelection(line);
        EXPECT_EQ(std::to_string(pair.library) + ' ' + std::to_string(pair.algorithm), row[2])
            << row[0] << ' ' << row[1];
    }
}

} // namespace
