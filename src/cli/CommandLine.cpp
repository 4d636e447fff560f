#include "cli/CommandLine.h"

#include "cli/HelpText.h"
#include "cli/Suggestion.h"
#include "cli/WordReader.h"
#include "common/version/Version.h"
#include "crypto/catalogue/Catalogue.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace cli {

namespace {

using tessaly::crypto::catalogue;

std::string commandProblem(const std::vector<std::string>& words)
{
    std::vector<std::string> names;
    for (const CommandRow& row : commandRows())
        names.emplace_back(row.name);
    if (words.empty())
        return "no command given; see --help";
    const std::string& word = words.front();
    if (word.starts_with('-') || findCommand(word))
        return {};
    return withSuggestion("unknown command " + word, word, names, "see --help");
}

/// Standard input can be read once only. The problem, or empty.
std::string secondReader(const Arguments& arguments)
{
    struct Reader
    {
        const char* option;
        const std::optional<std::string>& file;
        const char* what;
    };
    const Reader readers[] = {{"--password-file", arguments.passwordFile, "password file"},
                              {"--key-file", arguments.keyFile, "key file"},
                              {"--iv-file", arguments.ivFile, "IV file"}};
    const char* taken = std::ranges::count(arguments.inputs, StandardStream) > 0 ? "file" : nullptr;
    for (const auto& [option, file, what] : readers) {
        if (file != StandardStream)
            continue;
        if (taken)
            return std::string(option) + " -: standard input is the " + taken + " already";
        taken = what;
    }
    return {};
}

/// What the words of a command cannot mean together; empty when they can.
std::string contradiction(const Arguments& arguments)
{
    const std::vector<std::string>& inputs = arguments.inputs;
    if (arguments.command == Command::Algorithms)
        return {};
    if (inputs.empty())
        return "no file given; see --help";
    if (std::ranges::count(inputs, "") > 0)
        return "the name of a file is empty";
    if (inputs.size() > 1 && arguments.output)
        return "--output " + *arguments.output + " names one file, and there are " +
               std::to_string(inputs.size()) + " to write; without it each gets a name of its own";
    if (inputs.size() > 1 && std::ranges::count(inputs, StandardStream) > 0)
        return "- is standard input and cannot stand among other files";
    return secondReader(arguments);
}

std::string algorithmProblem(Arguments& arguments)
{
    if (!arguments.algorithm) {
        if (arguments.command == Command::Encrypt)
            arguments.algorithmId = tessaly::crypto::DefaultAlgorithmId;
        return {};
    }
    const auto* entry = tessaly::crypto::findAlgorithm(std::string_view(*arguments.algorithm));
    if (entry) {
        arguments.algorithmId = entry->id;
        return {};
    }
    std::vector<std::string> names;
    for (const auto& one : catalogue())
        names.emplace_back(one.name);
    return withSuggestion("unknown algorithm \"" + *arguments.algorithm + '"', *arguments.algorithm, names,
                          "see quillet-cli algorithms");
}

} // namespace

ParseOutcome parseCommandLine(const std::vector<std::string>& words)
{
    Arguments arguments;
    if (std::string problem = commandProblem(words); !problem.empty())
        return {{}, {}, std::move(problem)};
    const CommandRow* row = findCommand(words.front());
    const std::vector<std::string> rest(words.begin() + (row ? 1 : 0), words.end());
    std::string problem = readWords(rest, row, arguments);
    if (arguments.help)
        return {{}, helpText(row ? std::optional(row->command) : std::nullopt), {}};
    if (arguments.version)
        return {{}, std::string("quillet-cli ") + tessaly::versionText() + "\n", {}};
    if (row)
        arguments.command = row->command;
    else if (problem.empty())
        problem = "no command given; see --help";

    if (problem.empty())
        problem = contradiction(arguments);
    if (problem.empty())
        problem = algorithmProblem(arguments);
    if (!problem.empty())
        return {{}, {}, std::move(problem)};
    return {std::move(arguments), {}, {}};
}

} // namespace cli
