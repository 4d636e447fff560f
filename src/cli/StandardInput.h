#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/job/Spool.h"

namespace cli {

/// Takes all of standard input into the spool, in the folder for temporary files ($TMPDIR, else /tmp). Its
/// second pair is the system's error: (5, 60) when the input cannot be read, (5, 61) when the spool cannot be
/// written.
tessaly::crypto::CryptoResult spoolStandardInput(tessaly::crypto::Spool& spool);

} // namespace cli
