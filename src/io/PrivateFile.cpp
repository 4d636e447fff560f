#include "io/PrivateFile.h"

#include "io/OutputFile.h"

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

} // namespace tessaly::io
