#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/job/Spool.h"

#include <filesystem>

namespace cli {

/// Where streams are kept: $TMPDIR, else /tmp.
std::filesystem::path temporaryFolder();

/// Takes all of standard input into the spool, in that folder. (5, 60) when the input cannot be read, (5, 61)
/// when the spool cannot be written, with the cause as the second pair.
tessaly::crypto::CryptoResult spoolStandardInput(tessaly::crypto::Spool& spool);

} // namespace cli
