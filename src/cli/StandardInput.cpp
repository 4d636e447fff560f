#include "cli/StandardInput.h"

#include "lib/platform/StandardStreams.h"
#include "lib/secret/Secret.h"

#include <filesystem>
#include <system_error>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;

namespace {

constexpr std::size_t AtOnce = 256 << 10;

} // namespace

CryptoResult spoolStandardInput(crypto::Spool& spool)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error)
        return {err::WriteStreamFailed, err::system(error.value())};
    if (const CryptoResult opened = spool.open(folder); !opened.ok())
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
