#include "cli/Plan.h"

#include "cli/DefaultOutput.h"
#include "io/PathCheck.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"
#include "lib/platform/StandardStreams.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <unordered_set>
#include <utility>

namespace cli {

using namespace tessaly;
using platform::pathFromNative;

namespace {

std::string folderText(const std::filesystem::path& path)
{
    return path.has_parent_path() ? platform::nativeText(path.parent_path()) : ".";
}

/// Empty when the input can be read, as far as one sees.
std::string inputProblem(const std::string& input)
{
    if (platform::fileStatus(pathFromNative(input)).kind == platform::FileKind::Directory)
        return "input is a folder: " + input + "; name the files in it";
    switch (io::checkInput(pathFromNative(input))) {
    case io::InputCheck::NotFound:
        return "input not found: " + input;
    case io::InputCheck::NotRegular:
        return "input is not a regular file: " + input;
    case io::InputCheck::Usable:
        break;
    }
    return {};
}

std::string outputProblem(const Item& item, bool force)
{
    switch (io::checkOutput(pathFromNative(item.input), pathFromNative(item.output))) {
    case io::OutputCheck::MatchesInput:
        return "output is the input itself: " + item.output + "; name another with --output";
    case io::OutputCheck::NotRegular:
        return "output is not a regular file: " + item.output;
    case io::OutputCheck::NoFolder:
        return "output folder not found: " + folderText(pathFromNative(item.output));
    case io::OutputCheck::Exists:
        return force ? "" : "output exists: " + item.output + "; --force replaces it";
    case io::OutputCheck::Free:
        break;
    }
    return {};
}

/// Empty unless the output would take the place of the secret that opens it.
std::string secretProblem(const std::string& output, const Arguments& arguments)
{
    const platform::FileStatus status = platform::fileStatus(pathFromNative(output));
    const std::pair<const std::optional<std::string>&, const char*> secrets[] = {
        {arguments.passwordFile, "password"}, {arguments.keyFile, "key"}, {arguments.ivFile, "IV"}};
    for (const auto& [file, what] : secrets)
        if (file && status.sameFile(*file == StandardStream ? platform::standardInputStatus()
                                                            : platform::fileStatus(pathFromNative(*file))))
            return "output is the " + std::string(what) + " file: " + output;
    return {};
}

class Planner
{
public:
    explicit Planner(const Arguments& arguments) : m_arguments(arguments)
    {
        for (const std::string& input : arguments.inputs)
            m_inputs.push_back(platform::fileStatus(pathFromNative(input)));
    }

    Plan make()
    {
        for (const std::string& input : m_arguments.inputs) {
            Item item{input, outputOf(input)};
            if (std::string problem = problemOf(item); !problem.empty())
                m_plan.problems.push_back(std::move(problem));
            else
                add(std::move(item));
        }
        return std::move(m_plan);
    }

private:
    std::string outputOf(const std::string& input) const
    {
        if (m_arguments.command == Command::Verify)
            return {};
        if (m_arguments.output)
            return *m_arguments.output;
        if (input == StandardStream)
            return StandardStream;
        return defaultOutput(input, m_arguments.command, [this](const std::string& path) {
            return !platform::fileStatus(pathFromNative(path)).exists() && !isPlanned(path);
        });
    }

    std::string problemOf(const Item& item) const
    {
        std::string problem = item.input == StandardStream ? "" : inputProblem(item.input);
        if (!problem.empty() || item.output.empty())
            return problem;
        if (item.output == StandardStream)
            return m_arguments.command == Command::Encrypt && platform::isOutputTerminal()
                       ? "an encrypted file is not written to a terminal; name a file with --output"
                       : "";
        if (isPlanned(item.output))
            return "output is that of another input already: " + item.output;
        problem = outputProblem(item, m_arguments.force);
        if (problem.empty())
            problem = secretProblem(item.output, m_arguments);
        const platform::FileStatus there = platform::fileStatus(pathFromNative(item.output));
        if (problem.empty() &&
            std::ranges::any_of(m_inputs, [&](const auto& one) { return there.sameFile(one); }))
            problem = "output is another input: " + item.output;
        return problem;
    }

    void add(Item item)
    {
        if (!item.output.empty())
            m_outputs.insert(io::pathKey(pathFromNative(item.output)));
        m_plan.items.push_back(std::move(item));
    }

    bool isPlanned(const std::string& output) const
    {
        return m_outputs.contains(io::pathKey(pathFromNative(output)));
    }

    const Arguments& m_arguments;
    std::vector<platform::FileStatus> m_inputs;
    std::unordered_set<std::wstring> m_outputs; ///< keys of those that are planned; thousands are usual
    Plan m_plan;
};

} // namespace

Plan makePlan(const Arguments& arguments)
{
    return Planner(arguments).make();
}

} // namespace cli
