#include "cli/ProgressLine.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

TEST(ProgressLine, TellsPercentSpeedAndTimeLeft)
{
    const struct
    {
        std::int64_t processed;
        double percent, seconds;
        const char* text;
    } rows[] = {
        {0, 0, 0, "0.0%  0.0 MB/s"},
        {512000000, 41.3, 1, "41.3%  512.0 MB/s  1 s left"},
        {5000000, 25, 2, "25.0%  2.5 MB/s  6 s left"},
        {100000000, 50, 59.4, "50.0%  1.7 MB/s  59 s left"},
        {100000000, 50, 59.6, "50.0%  1.7 MB/s  1 min 0 s left"},
        {100000000, 50, 3599.4, "50.0%  0.0 MB/s  59 min 59 s left"},
        {100000000, 50, 7890, "50.0%  0.0 MB/s  2 h 11 min left"},
        {100, 100, 2, "100.0%  0.0 MB/s  0 s left"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(cli::progressText(row.processed, row.percent, row.seconds), row.text);
}

TEST(ProgressLine, ShortensLongNamesBetweenLetters)
{
    EXPECT_EQ(cli::progressLabel(2, 11, "/folder/a\nb.txt"), "2/11 a\\nb.txt");
    const std::string longest(32, 'x');
    EXPECT_EQ(cli::progressLabel(1, 2, longest), "1/2 " + longest);
    EXPECT_EQ(cli::progressLabel(1, 2, "xxxxxxxxxxxxxxxxxxxxyyyyyyyyyyyyyyyyyyyy"),
              "1/2 xxxxxxxxxxxxxxxx...yyyyyyyyyyyyyyyy");
    EXPECT_EQ(cli::progressLabel(1, 2, "xééééééééééééééééééééy"), "1/2 xééééééé...éééééééy");
}

/// What comes on a terminal of that width.
std::string shown(unsigned short columns, bool isWanted)
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    EXPECT_TRUE(::grantpt(master) == 0 && ::unlockpt(master) == 0);
    const int terminal = ::open(::ptsname(master), O_RDWR | O_NOCTTY);
    const winsize size{24, columns, 0, 0};
    EXPECT_EQ(::ioctl(terminal, TIOCSWINSZ, &size), 0);
    const int before = ::dup(STDERR_FILENO);
    ::dup2(terminal, STDERR_FILENO);
    {
        cli::ProgressLine line("1/2 a", isWanted);
        line.jobDerivingKey();
        line.jobFlushing();
    }
    std::fputs("end", stderr);
    ::dup2(before, STDERR_FILENO);
    std::string text;
    for (std::array<char, 256> piece{}; !text.ends_with("end");)
        text.append(piece.data(), static_cast<std::size_t>(::read(master, piece.data(), piece.size())));
    for (const int handle : {before, terminal, master})
        ::close(handle);
    return text;
}

TEST(ProgressLine, IsRewrittenInPlaceAndGoesAtTheEnd)
{
    EXPECT_EQ(shown(80, true), "\r1/2 a  Making the key of the password\r1/2 a  Waiting for the disk" +
                                   std::string(10, ' ') + "\r" + std::string(27, ' ') + "\rend");
    EXPECT_EQ(shown(20, true),
              "\r1/2 a  Making the k\r1/2 a  Waiting for \r" + std::string(19, ' ') + "\rend");
    EXPECT_EQ(shown(80, false), "end");
}

} // namespace
