#pragma once

#include <cstdint>
#include <string>

namespace tessaly::logger::internal {

/// One line waiting for the file. The texts are as logged; format makes them fit one line.
struct LogLine
{
    std::int64_t time = 0; ///< local file time; 0 leaves it out of the line
    std::uint32_t processId = 0;
    std::uint32_t threadId = 0;
    std::uint32_t level = 0;
    std::string source;
    std::string message;
    std::uint32_t extra = 0; ///< not written

    /// Appends "[time] [level] [process] [thread] [source] message", without a line end.
    void format(std::string& out) const;
};

} // namespace tessaly::logger::internal
