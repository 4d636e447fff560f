#pragma once

#include "cli/ExitCode.h"
#include "crypto/CryptoResult.h"

#include <string>

namespace cli {

/// One line on standard error: "quillet-cli: ...". What a file name may hold and a terminal obey is
/// shown as in the log (see lib/logger/LogText.h).
void complain(const std::string& message);

/// One line on standard output, names shown in the same way.
ExitCode tell(const std::string& message);

/// The text on standard output. Failed, and told, when it cannot be written; not told when nobody reads it
/// any more.
ExitCode print(const std::string& text);

/// The sentence of a failure with its code, for example "Corrupted data (error: 5/4003)".
std::string errorLine(const std::string& sentence, const tessaly::crypto::CryptoResult& result);

} // namespace cli
