#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Runs a command and prints the seconds that it took, and its peak memory in KiB. A small process of its
// own, as a command inherits the peak of the one that starts it.

namespace {

using Clock = std::chrono::steady_clock;

bool flush(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = file >= 0 && ::fsync(file) == 0;
    ::close(file);
    return flushed;
}

bool flushWithFolder(const std::string& path)
{
    const auto slash = path.rfind('/');
    return flush(path) && flush(slash == std::string::npos ? "." : path.substr(0, slash));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fputs("usage: timed_run OUTPUT COMMAND...\nflushes OUTPUT within the time; - for none\n",
                   stderr);
        return 2;
    }
    const auto start = Clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        const int nothing = ::open("/dev/null", O_RDWR);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::dup2(nothing, stream);
        ::execvp(argv[2], argv + 2);
        ::_exit(127);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || ::wait4(child, &status, 0, &usage) != child || status != 0)
        return 1;
    if (std::strcmp(argv[1], "-") != 0 && !flushWithFolder(argv[1]))
        return 1;
    std::printf("%.5f %ld\n", std::chrono::duration<double>(Clock::now() - start).count(), usage.ru_maxrss);
    return 0;
}
