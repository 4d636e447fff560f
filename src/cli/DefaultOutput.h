#pragma once

#include "cli/CommandTable.h"

#include <functional>
#include <string>

namespace cli {

/// The output beside the input. Encrypted, x becomes x.enc; decrypted, x.enc becomes x where that is free,
/// else x.dec, and so does a file with the extension that the window's settings have for encrypted ones.
std::string defaultOutput(const std::string& input, Command command,
                          const std::function<bool(const std::string&)>& isFree);

} // namespace cli
