#include "cli/StandardOutput.h"

#include "lib/platform/StandardStreams.h"

namespace cli {

std::int64_t StandardOutput::write(const void* buffer, std::int64_t count)
{
    const auto* bytes = static_cast<const char*>(buffer);
    std::int64_t done = 0;
    while (done < count) {
        std::size_t written = 0;
        const tessaly::ResultCode result = tessaly::platform::writeStandardOutput(
            bytes + done, static_cast<std::size_t>(count - done), written);
        if (!result.ok()) {
            m_error.store(result);
            break;
        }
        done += static_cast<std::int64_t>(written);
        m_hasWritten = true;
    }
    return done;
}

} // namespace cli
