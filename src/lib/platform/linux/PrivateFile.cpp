#include "lib/platform/PrivateFile.h"

#include "lib/err/ErrorCodes.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace tessaly::platform {

namespace {

bool writeAll(int file, std::string_view contents)
{
    while (!contents.empty()) {
        const ssize_t written = write(file, contents.data(), contents.size());
        if (written > 0)
            contents.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return false;
    }
    return fsync(file) == 0;
}

} // namespace

ResultCode writePrivateFile(const std::string& path, std::string_view contents)
{
    std::string temporary = path + ".XXXXXX";
    const int file = mkstemp(temporary.data()); // created with mode 0600
    if (file < 0)
        return err::system(errno);

    bool good = writeAll(file, contents);
    int error = errno;
    if (close(file) != 0 && good) {
        good = false;
        error = errno;
    }
    if (good && std::rename(temporary.c_str(), path.c_str()) == 0)
        return {};
    if (good)
        error = errno;
    unlink(temporary.c_str());
    return err::system(error);
}

} // namespace tessaly::platform
