#pragma once

#include "crypto/CryptoResult.h"

#include <string>

namespace cli {

/// One line on standard error: "quillet-cli: ...". Control characters, which a file name may hold,
/// are shown as "?".
void complain(const std::string& message);

/// The sentence of a failure with its code, for example "Corrupted data (error: 5/4003)".
std::string errorLine(const std::string& sentence, const tessaly::crypto::CryptoResult& result);

} // namespace cli
