#include "lib/logger/LogLine.h"

#include "lib/logger/FileTime.h"
#include "lib/logger/Level.h"
#include "lib/logger/LogText.h"

#include <array>
#include <cstdio>

namespace tessaly::logger::internal {

namespace {

void appendId(std::string& out, std::uint32_t id)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%05llu", static_cast<unsigned long long>(id));
    out += text.data();
}

} // namespace

void LogLine::format(std::string& out) const
{
    std::string column;
    if (time > 0) {
        column = formatFileTime(time);
        out += "[" + column + "] ";
    }
    // A number that is no level leaves the time standing here: readers of these files know it so.
    if (const auto* row = findLevel(level))
        column = row->tag.view();
    out += "[" + column;
    out += "] [";
    appendId(out, processId);
    out += "] [";
    appendId(out, threadId);
    out += "] [";
    appendOneLine(out, source);
    out += "] ";
    appendOneLine(out, message);
}

} // namespace tessaly::logger::internal
