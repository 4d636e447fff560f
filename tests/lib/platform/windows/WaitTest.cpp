#include "lib/platform/windows/Wait.h"
#include "lib/platform/StandardStreams.h"
#include "lib/platform/windows/SystemCall.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace tessaly;
using namespace tessaly::platform;

/// One standard stream is an end of a pipe for as long as it lives.
class PipedStream
{
public:
    explicit PipedStream(DWORD stream) : m_stream(stream), m_before(::GetStdHandle(stream))
    {
        HANDLE input = nullptr;
        HANDLE output = nullptr;
        EXPECT_TRUE(::CreatePipe(&input, &output, nullptr, 4096));
        const bool isInput = stream == STD_INPUT_HANDLE;
        m_ours = OwnHandle(isInput ? input : output);
        other = OwnHandle(isInput ? output : input);
        ::SetStdHandle(stream, m_ours.get());
    }
    ~PipedStream() { ::SetStdHandle(m_stream, m_before); }
    PipedStream(const PipedStream&) = delete;
    PipedStream& operator=(const PipedStream&) = delete;

    OwnHandle other; ///< the end of whoever is behind the stream

private:
    DWORD m_stream;
    HANDLE m_before;
    OwnHandle m_ours;
};

TEST(Wait, AnInterruptEndsARead)
{
    const PipedStream input(STD_INPUT_HANDLE);
    ResultCode result;
    std::size_t count = 1;
    std::thread reader([&] {
        char byte = 0;
        result = readStandardInput(&byte, 1, count);
    });
    while (!Wait::isAnyUnderWay())
        std::this_thread::yield();
    Wait::endAll();
    reader.join();
    EXPECT_EQ(result, interruptedWait());
    EXPECT_EQ(count, 0U);
}

TEST(StandardStreams, TellTheEndOfAPipe)
{
    PipedStream input(STD_INPUT_HANDLE);
    PipedStream output(STD_OUTPUT_HANDLE);
    DWORD written = 0;
    ASSERT_TRUE(::WriteFile(input.other.get(), "ab", 2, &written, nullptr));
    input.other = OwnHandle();
    char bytes[8] = {};
    std::size_t count = 0;
    EXPECT_TRUE(readStandardInput(bytes, sizeof bytes, count).ok() && count == 2);
    EXPECT_TRUE(readStandardInput(bytes, sizeof bytes, count).ok() && count == 0);
    EXPECT_TRUE(writeStandardOutput("abc", 3, count).ok() && count == 3);
    output.other = OwnHandle();
    EXPECT_TRUE(isClosedPipe(writeStandardOutput("abc", 3, count)));
}

} // namespace
