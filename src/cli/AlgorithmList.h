#pragma once

#include <string>

namespace cli {

/// The catalogue as a table with a heading.
std::string algorithmTable();

/// The same as a JSON array of objects: id, name, keyBytes, blockBytes, ivBytes, mode.
std::string algorithmJson();

} // namespace cli
