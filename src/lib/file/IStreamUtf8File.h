#pragma once

#include "lib/err/ResultCode.h"
#include "lib/platform/File.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessaly::io {

struct SFileOptions
{
    /// A longer file is refused with FileTooLarge, so that no text can fill the memory.
    std::uint64_t sizeLimit = 16u << 20;
};

/// The bytes of one UTF-8 text file: line ends as they are ("rb"), a leading byte-order mark dropped
/// ("ccs=UTF-8"). The options may be set from any thread and hold from the next open on; everything
/// else is for one thread at a time.
class IStreamUtf8File final
{
public:
    explicit IStreamUtf8File(SFileOptions options = {}) : m_options(options) {}

    SFileOptions options() const { return m_options.get(); }
    void setOptions(SFileOptions options) { m_options.set(options); }

    /// Fails with NullArgument for an empty path, with the system's error (a folder's too), with
    /// FileTooLarge, and with OpenFileFailed for a device, a FIFO or a socket, which it never waits for.
    ResultCode open(const std::wstring& path);
    /// Reads up to size bytes; count is 0 at the end of the file. Fails with StreamClosed, with the
    /// system's error, and with FileTooLarge when the file grew past the limit meanwhile.
    ResultCode read(char* buffer, std::size_t size, std::size_t& count);
    void close();

    bool isOpen() const { return m_file.isOpen(); }

private:
    ResultCode checkFile() const;
    ResultCode readHead();
    ResultCode readCounted(char* buffer, std::size_t size, std::size_t& count);

    sync::internal::SafeData<sync::Locker, SFileOptions> m_options;
    platform::File m_file;
    std::string m_head; ///< the first bytes, read to look for the mark and not handed out yet
    std::uint64_t m_left = 0;
};

} // namespace tessaly::io
