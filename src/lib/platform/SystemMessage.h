#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessaly::platform {

/// The system's own sentence for one of its error numbers, in the user's language and UTF-8,
/// without a full stop and a line end; nothing for a number that the system does not know.
std::optional<std::string> systemMessage(std::uint32_t errorNumber);

} // namespace tessaly::platform
