#include "io/PrivateFile.h"

#include "io/OutputFile.h"
#include "lib/err/ErrorCodes.h"

namespace tessaly::io {

ResultCode writePrivateFile(const std::filesystem::path& path, std::string_view contents)
{
    const auto place = std::make_shared<FilePlace>();
    if (const ResultCode opened = place->open(path); !opened.ok())
        return opened;
    OutputFile file;
    if (const ResultCode opened = file.open(place, platform::Access::ownerOnly()); !opened.ok())
        return opened;
    const auto count = static_cast<std::int64_t>(contents.size());
    if (file.write(contents.data(), count) < count)
        return file.lastError();
    return file.commit(OutputFile::Existing::Replace);
}

ResultCode readSmallFile(const std::filesystem::path& path, SecretBytes& contents)
{
    constexpr std::int64_t MostBytes = 64 << 10;
    platform::File file;
    if (const ResultCode opened = file.openForReading(path); !opened.ok())
        return opened;
    platform::FileStatus status;
    if (const ResultCode known = file.status(status); !known.ok())
        return known;
    if (status.kind != platform::FileKind::Regular || status.size > MostBytes)
        return err::library(err::OpenFileFailed);
    SecretBytes bytes(static_cast<std::size_t>(status.size));
    std::size_t done = 0;
    for (std::size_t got = 1; got > 0 && done < bytes.size(); done += got)
        if (const ResultCode read = file.read(bytes.data() + done, bytes.size() - done, got); !read.ok())
            return read;
    bytes.resize(done);
    contents = std::move(bytes);
    return {};
}

} // namespace tessaly::io
