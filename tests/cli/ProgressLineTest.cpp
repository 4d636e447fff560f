#include "cli/ProgressLine.h"

#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

TEST(ProgressLine, TellsPercentSpeedAndTimeLeft)
{
    for (const test::Row& row : test::dataRows("progress.txt"))
        EXPECT_EQ(cli::progressText(std::stoll(row.at(0)), std::stod(row.at(1)), std::stod(row.at(2))),
                  row.at(3));
}

TEST(ProgressLine, ShortensLongNamesBetweenLetters)
{
    for (const test::Row& row : test::dataRows("progress_names.txt"))
        EXPECT_EQ(cli::progressLabel(1, 2, row.at(0)), "1/2 " + row.at(1));
    EXPECT_EQ(cli::progressLabel(2, 11, "/folder/a\nb.txt"), "2/11 a\\nb.txt");
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
