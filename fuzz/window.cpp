// The window's command line. The two signs and the letter case of an option make no difference, a value is
// never an option, and no argument is lost or made up. Arguments stand between zero bytes.

#include "app/commandline/Arguments.h"
#include "app/commandline/CommandLine.h"
#include "crypto/catalogue/Catalogue.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace fuzz;
using namespace thisapp;

namespace {

const QStringList OptionWords{"encrypt", "decrypt", "start", "ifile", "ofile", "algorithm", "library"};

bool isOption(const QString& argument)
{
    return (argument.startsWith('-') || argument.startsWith('/')) &&
           OptionWords.contains(argument.mid(1), Qt::CaseInsensitive);
}

/// Every option with the other sign and in capitals.
QStringList disguised(QStringList arguments)
{
    for (QString& argument : arguments)
        if (isOption(argument))
            argument = (argument.startsWith('-') ? '/' : '-') + argument.mid(1).toUpper();
    return arguments;
}

bool isFile(const QString& path)
{
    return path.size() % 3 == 1;
}

auto everythingIn(const CommandLine& line)
{
    return std::tie(line.operation, line.start, line.input, line.output, line.algorithm, line.library,
                    line.words);
}

void checkRule(const QStringList& arguments, SlashRule rule)
{
    const CommandLine line = parseCommandLine(arguments, rule, isFile);
    const QStringList others = disguised(arguments);
    const bool isOneFile = arguments.size() == 1 && line.input.has_value();
    if (!isOneFile)
        require(everythingIn(line) == everythingIn(parseCommandLine(others, rule, isFile)),
                "sign and letter case make no difference");

    const auto contains = [&](const QString& text) {
        return std::ranges::any_of(arguments,
                                   [&](const QString& one) { return one == text || one.trimmed() == text; });
    };
    for (const std::optional<QString>& value :
         {line.input, line.output, std::optional(line.algorithm), std::optional(line.library)})
        require(!value || value->isEmpty() || contains(*value), "a value is an argument");
    const auto hasSign = [](const QString& value) { return value.startsWith('-') || value.startsWith('/'); };
    if (rule == SlashRule::AnyWord && !isOneFile)
        require(!hasSign(line.input.value_or("")) && !hasSign(line.algorithm) && !hasSign(line.library),
                "a value begins with no sign");
    for (const QString& word : line.words)
        require(arguments.contains(word) && !isOption(word), "a word is an argument and no option");
    const AlgSelection selection = namedSelection(line);
    require(selection.library != 0 &&
                (selection.algorithm == 0 || tessaly::crypto::findAlgorithm(selection.algorithm) != nullptr),
            "the algorithm exists");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::string> given = words(text(data, size));
    const QStringList arguments = argumentTexts(given);
    require(arguments.size() == static_cast<int>(given.size()), "as many texts as arguments");
    checkRule(arguments, SlashRule::AnyWord);
    checkRule(arguments, SlashRule::KnownWord);
    return 0;
}
