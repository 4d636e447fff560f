#include "lib/platform/StandardStreams.h"

#include "lib/platform/Interrupts.h"
#include "lib/platform/linux/FileStatus.h"
#include "lib/platform/linux/SystemCall.h"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

/// Waits until a call does not block. In short steps: a signal may come just before the wait, or to another
/// thread.
ResultCode await(int handle, short event)
{
    while (!Interrupts::happened()) {
        pollfd stream{handle, event, 0};
        const int ready = ::poll(&stream, 1, 100);
        if (ready > 0)
            return {};
        if (ready < 0 && errno != EINTR)
            return err::system(errno);
    }
    return err::system(EINTR);
}

FileStatus statusOf(int handle)
{
    struct stat info = {};
    return ::fstat(handle, &info) == 0 ? toFileStatus(info) : FileStatus{};
}

} // namespace

ResultCode readStandardInput(void* buffer, std::size_t count, std::size_t& countRead)
{
    countRead = 0;
    for (;;) {
        if (const ResultCode ready = await(STDIN_FILENO, POLLIN); !ready.ok())
            return ready;
        const ssize_t got = ::read(STDIN_FILENO, buffer, count);
        if (got < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        countRead = got > 0 ? static_cast<std::size_t>(got) : 0;
        return outcome(got >= 0);
    }
}

ResultCode writeStandardOutput(const void* buffer, std::size_t count, std::size_t& countWritten)
{
    // So much fits into a pipe that is ready, without waiting.
    static const std::size_t atOnce =
        statusOf(STDOUT_FILENO).kind == FileKind::Regular ? SSIZE_MAX : static_cast<std::size_t>(PIPE_BUF);
    countWritten = 0;
    for (;;) {
        if (const ResultCode ready = await(STDOUT_FILENO, POLLOUT); !ready.ok())
            return ready;
        const ssize_t put = ::write(STDOUT_FILENO, buffer, std::min(count, atOnce));
        if (put < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        countWritten = put > 0 ? static_cast<std::size_t>(put) : 0;
        if (put == 0 && count > 0)
            return err::system(EIO);
        return outcome(put >= 0);
    }
}

ResultCode closeStandardOutput()
{
    return outcome(::close(STDOUT_FILENO) == 0 || errno == EINTR);
}

std::FILE* openBytes(const std::string& path)
{
    std::FILE* file = nullptr;
    do
        file = std::fopen(path.c_str(), "rb");
    while (!file && errno == EINTR && !Interrupts::happened());
    return file;
}

FileStatus standardInputStatus()
{
    return statusOf(STDIN_FILENO);
}

bool isOutputTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1;
}

bool isClosedPipe(ResultCode result)
{
    return result == err::system(EPIPE);
}

void prepareStandardStreams()
{
    // The lowest free number is taken, and it is opened for the wrong direction.
    for (const int handle : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(handle, F_GETFD) < 0)
            (void)::open("/dev/null", handle == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

} // namespace tessaly::platform
