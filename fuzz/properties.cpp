// The reader of properties files, against a second one, which knows the whole text at once.

#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "lib/file/PropertiesFileReader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace fuzz;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// One line of the file without the blanks before it; nothing for one without content.
std::optional<std::string> contentOf(std::string line)
{
    while (!line.empty() && isBlank(line.front()))
        line.erase(0, 1);
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    if (line.empty() || line[0] == '#' || line[0] == '!')
        return std::nullopt;
    return line;
}

/// Whether the line ends in the one backslash that joins it with the next; which is then cut off.
bool isJoined(std::string& line)
{
    std::size_t end = line.size();
    while (end > 0 && isBlank(line[end - 1]))
        --end;
    const bool joined = end >= 2 && line[end - 1] == '\\' && line[end - 2] != '\\';
    if (joined)
        line.resize(end - 1);
    return joined;
}

std::pair<std::string, std::string> pairOf(const std::string& line)
{
    enum { Key, Blanks, BlanksBehindSeparator, Value } state = Key;
    std::pair<std::string, std::string> pair;
    for (std::size_t i = 0; i < line.size(); ++i) {
        char c = line[i];
        const bool isSeparator = c == '=' || c == ':';
        if (state == Key && (isSeparator || isBlank(c))) {
            state = isSeparator ? BlanksBehindSeparator : Blanks;
            continue;
        }
        if (state != Value && state != Key && isBlank(c))
            continue;
        if (state == Blanks && isSeparator) {
            state = BlanksBehindSeparator;
            continue;
        }
        if (state != Key)
            state = Value;
        if (c == '\\' && i + 1 < line.size()) {
            c = line[++i];
            c = c == 'n' ? '\n' : c == 'r' ? '\r' : c;
        }
        (state == Key ? pair.first : pair.second) += c;
    }
    return pair;
}

Pairs readAtOnce(std::string text)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    Pairs pairs;
    std::optional<std::string> open;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::optional<std::string> line = contentOf(text.substr(begin, end - begin));
        begin = end + 1;
        if (!line)
            continue;
        const bool goesOn = isJoined(*line);
        open = open.value_or("") + *line;
        if (!goesOn) {
            pairs.push_back(pairOf(*open));
            open.reset();
        }
    }
    if (open)
        pairs.push_back(pairOf(*open));
    return pairs;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const MemoryFile file(text(data, size));
    Pairs pairs;
    const auto sink = [&](const std::string& key, const std::string& value) {
        pairs.emplace_back(key, value);
    };
    require(tessaly::file::internal::PropertiesFileReader().read(file.path(), sink).ok(),
            "any bytes can be read");
    require(pairs == readAtOnce(std::string(text(data, size))), "the pairs are those of the second reader");
    return 0;
}
