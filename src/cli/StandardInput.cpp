#include "cli/StandardInput.h"

#include "lib/platform/StandardStreams.h"
#include "lib/secret/Secret.h"

#include <cstdlib>
#include <system_error>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;

namespace {

constexpr std::size_t AtOnce = 256 << 10;

} // namespace

std::filesystem::path temporaryFolder()
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    const char* wished = std::getenv("TMPDIR");
    return !error ? folder : wished ? wished : "/tmp";
}

CryptoResult spoolStandardInput(crypto::Spool& spool)
{
    if (const CryptoResult opened = spool.open(temporaryFolder()); !opened.ok())
        return {err::WriteStreamFailed, opened.first()};
    SecretBytes bytes(AtOnce);
    for (;;) {
        std::size_t got = 0;
        if (const ResultCode read = platform::readStandardInput(bytes.data(), bytes.size(), got); !read.ok())
            return {err::ReadStreamFailed, read};
        if (got == 0)
            return {};
        if (const CryptoResult kept = spool.append(bytes.data(), got); !kept.ok())
            return {err::WriteStreamFailed, kept.first()};
    }
}

} // namespace cli
