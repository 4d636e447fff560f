#include "lib/file/PropertiesFileReader.h"

#include "lib/file/Variables.h"

#include <algorithm>
#include <string_view>

namespace tessaly::file::internal {

namespace {

constexpr std::string_view Blanks = " \t\n\v\f\r";
constexpr std::string_view CommentCharacters = "#!";

bool isBlank(char c)
{
    return Blanks.find(c) != std::string_view::npos;
}

void dropLeadingBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
}

/// The line without its leading blanks and its carriage return; empty for a comment.
std::string_view content(std::string_view line)
{
    dropLeadingBlanks(line);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    const bool isComment = !line.empty() && CommentCharacters.find(line.front()) != std::string_view::npos;
    return isComment ? std::string_view() : line;
}

/// Cuts the ending that joins the line to the next one, if there is one.
bool cutContinuation(std::string_view& line)
{
    const auto last = line.find_last_not_of(Blanks);
    if (last == std::string_view::npos || last == 0 || line[last] != '\\' || line[last - 1] == '\\')
        return false;
    line = line.substr(0, last);
    return true;
}

/// Takes one character off the text, its escape resolved, and appends it to target.
void takeCharacter(std::string_view& text, std::string& target)
{
    char c = text.front();
    text.remove_prefix(1);
    if (c == '\\' && !text.empty()) {
        c = text.front() == 'n' ? '\n' : text.front() == 'r' ? '\r' : text.front();
        text.remove_prefix(1);
    }
    target += c;
}

bool isSeparator(char c)
{
    return c == '=' || c == ':';
}

void splitPair(std::string_view line, std::string& key, std::string& value)
{
    key.clear();
    value.clear();
    while (!line.empty() && !isSeparator(line.front()) && !isBlank(line.front()))
        takeCharacter(line, key);
    dropLeadingBlanks(line);
    if (!line.empty() && isSeparator(line.front()))
        line.remove_prefix(1);
    dropLeadingBlanks(line);
    while (!line.empty())
        takeCharacter(line, value);
}

} // namespace

ResultCode PropertiesFileReader::read(const std::wstring& path, const PairSink& sink)
{
    return read(path, sink, nullptr, nullptr);
}

ResultCode PropertiesFileReader::read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter)
{
    return read(path, sink, filter, nullptr);
}

ResultCode PropertiesFileReader::read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter,
                                      const IVariablesSetter* variables)
{
    ResultCode result = open(path);
    std::string line;
    std::string key;
    std::string value;
    bool hasLine = true;
    while (result.ok() && hasLine) {
        result = readLogicalLine(line, hasLine);
        if (!hasLine)
            continue;
        splitPair(line, key, value);
        if (!filter || filter(key))
            sink(key, variables != nullptr ? expandVariables(value, *variables) : value);
    }
    close();
    return result;
}

/// The next line that is not empty, with the lines that continue it.
ResultCode PropertiesFileReader::readLogicalLine(std::string& line, bool& hasLine)
{
    line.clear();
    bool started = false;
    std::string physical;
    for (;;) {
        const ResultCode result = readLine(physical, hasLine);
        if (!hasLine) {
            hasLine = started && result.ok();
            return result;
        }
        std::string_view part = content(physical);
        if (part.empty())
            continue;
        const bool continues = cutContinuation(part);
        line += part;
        started = true;
        if (!continues)
            return {};
    }
}

} // namespace tessaly::file::internal
