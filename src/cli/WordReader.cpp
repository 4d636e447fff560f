#include "cli/WordReader.h"

#include "cli/Suggestion.h"

#include <algorithm>
#include <optional>

namespace cli {

namespace {

class WordReader
{
public:
    WordReader(const std::vector<std::string>& arguments, const CommandRow* command, Words& words)
        : m_arguments(arguments), m_command(command), m_words(words)
    {
    }

    std::string read()
    {
        bool areOptions = true;
        while (m_next < m_arguments.size() && m_problem.empty() && !m_words.help && !m_words.version) {
            const std::string& word = m_arguments[m_next++];
            if (areOptions && word == "--")
                areOptions = false;
            else if (areOptions && word.starts_with("--"))
                readLong(word.substr(2));
            else if (areOptions && word.size() > 1 && word.front() == '-')
                readShort(word.substr(1));
            else
                readOperand(word);
        }
        return m_problem.empty() && !m_words.help ? brokenRule() : m_problem;
    }

private:
    bool isOurs(const OptionRow& row) const
    {
        return m_command ? (row.commands & bitOf(m_command->command)) != 0 : row.commands == 0;
    }

    void readOperand(const std::string& word)
    {
        if (m_command && *m_command->operands)
            m_words.inputs.push_back(word);
        else
            m_problem = "unexpected argument " + word;
    }

    void readLong(const std::string& word)
    {
        const auto equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const auto given =
            equals == std::string::npos ? std::nullopt : std::optional(word.substr(equals + 1));
        const auto row = std::ranges::find_if(
            optionRows(), [&](const OptionRow& one) { return isOurs(one) && name == one.longName; });
        if (row == optionRows().end())
            m_problem = unknown("--" + name);
        else if (!row->argument && given)
            m_problem = "--" + name + " takes no value";
        else
            use(*row, "--" + name, given);
    }

    /// Several flags may stand behind one dash, and the value of an option right behind its letter.
    void readShort(const std::string& letters)
    {
        for (std::size_t i = 0; i < letters.size() && m_problem.empty(); ++i) {
            const auto row = std::ranges::find_if(optionRows(), [&](const OptionRow& one) {
                return isOurs(one) && one.shortName != 0 && one.shortName == letters[i];
            });
            const std::string name = std::string{'-', letters[i]};
            const bool hasRest = i + 1 < letters.size();
            if (row == optionRows().end()) {
                m_problem = unknown(i == 0 ? '-' + letters : name);
            } else if (row->argument) {
                use(*row, name, hasRest ? std::optional(letters.substr(i + 1)) : std::nullopt);
                return;
            } else {
                use(*row, name, {});
            }
        }
    }

    std::string unknown(const std::string& word) const
    {
        std::vector<std::string> known;
        for (const OptionRow& row : optionRows())
            if (isOurs(row))
                known.push_back(std::string("--") + row.longName);
        return withSuggestion("unknown option " + word, word, known, "see --help");
    }

    void use(const OptionRow& row, const std::string& name, std::optional<std::string> value)
    {
        m_used.emplace_back(row.longName);
        if (const auto* flag = std::get_if<bool Words::*>(&row.target)) {
            m_words.** flag = true;
            return;
        }
        std::optional<std::string>& target =
            m_words.*std::get<std::optional<std::string> Words::*>(row.target);
        const bool isLeft = m_next < m_arguments.size();
        // A forgotten value is likelier than one that looks like an option.
        if (!value && isLeft && !(m_arguments[m_next].size() > 1 && m_arguments[m_next].front() == '-'))
            value = m_arguments[m_next++];
        if (!value)
            m_problem = name + " needs a value: " + row.argument;
        else if (value->empty())
            m_problem = name + ": the value is empty";
        else if (target)
            m_problem = name + " is given twice";
        target = std::move(value);
    }

    bool isUsed(const char* longName) const { return std::ranges::count(m_used, longName) > 0; }

    std::string brokenRule() const
    {
        for (const OptionRule& rule : optionRules())
            if (isUsed(rule.option) && isUsed(rule.other) != rule.needs)
                return std::string("--") + rule.option + (rule.needs ? " needs --" : " cannot go with --") +
                       rule.other;
        return {};
    }

    const std::vector<std::string>& m_arguments;
    const CommandRow* m_command;
    Words& m_words;
    std::size_t m_next = 0;
    std::vector<std::string> m_used; ///< long names
    std::string m_problem;
};

} // namespace

std::string readWords(const std::vector<std::string>& arguments, const CommandRow* command, Words& words)
{
    return WordReader(arguments, command, words).read();
}

} // namespace cli
