// The console's command line: whatever it says, it is understood or refused as a whole, and what was
// understood can be said again, in one way, to the same effect. Arguments stand between zero bytes.

#include "cli/CommandLine.h"
#include "crypto/catalogue/Catalogue.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace fuzz;
using namespace cli;

namespace {

/// The options in the order of the table, in their long form, then the files.
std::vector<std::string> said(const Arguments& arguments)
{
    std::vector<std::string> words{rowOf(arguments.command).name};
    for (const OptionRow& row : optionRows()) {
        if ((row.commands & bitOf(arguments.command)) == 0)
            continue;
        const std::string name = std::string("--") + row.longName;
        if (const auto* flag = std::get_if<bool Words::*>(&row.target)) {
            if (arguments.**flag)
                words.push_back(name);
        } else if (const auto& value = arguments.*std::get<std::optional<std::string> Words::*>(row.target)) {
            words.push_back(name + '=' + *value);
        }
    }
    words.emplace_back("--");
    words.insert(words.end(), arguments.inputs.begin(), arguments.inputs.end());
    return words;
}

void checkSense(const Arguments& arguments)
{
    const bool isList = arguments.command == Command::Algorithms;
    require(arguments.inputs.empty() == isList, "files for what works on files");
    require(std::ranges::count(arguments.inputs, "") == 0, "no file without a name");
    require(!arguments.output || arguments.inputs.size() == 1, "one output for one input");
    require(!arguments.passwordFile || !arguments.keyFile, "a password or a key");
    require(!arguments.ivFile || arguments.keyFile, "no IV without a key");
    require(!arguments.algorithmId || tessaly::crypto::findAlgorithm(*arguments.algorithmId) != nullptr,
            "the algorithm exists");
    require(arguments.algorithmId.has_value() ==
                (arguments.algorithm.has_value() || arguments.command == Command::Encrypt),
            "an algorithm where one is named or needed");
    const auto readers = std::ranges::count(arguments.inputs, StandardStream) +
                         (arguments.passwordFile == StandardStream) + (arguments.keyFile == StandardStream) +
                         (arguments.ivFile == StandardStream);
    require(readers <= 1, "standard input is read once");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::string> arguments = words(text(data, size));
    const ParseOutcome outcome = parseCommandLine(arguments);
    require(outcome.arguments.has_value() + !outcome.answer.empty() + !outcome.problem.empty() == 1,
            "one of the three");
    if (!outcome.arguments)
        return 0;
    checkSense(*outcome.arguments);
    const std::vector<std::string> again = said(*outcome.arguments);
    const ParseOutcome repeated = parseCommandLine(again);
    require(repeated.arguments && said(*repeated.arguments) == again, "said again it means the same");
    require(repeated.arguments->algorithmId == outcome.arguments->algorithmId, "with the same algorithm");
    return 0;
}
