#include "lib/err/ErrorCodes.h"
#include "lib/logger/Clock.h"
#include "lib/logger/Log.h"
#include "lib/platform/Process.h"

#include <gtest/gtest.h>

#include <array>
#include <future>
#include <memory>

namespace {

using namespace tessaly::logger;
using namespace tessaly::logger::internal;
namespace err = tessaly::err;

/// Notes each line as "name:level:message ".
class NotingAppender final : public LogAppender<char>
{
public:
    NotingAppender(std::string name, std::string& notes) : m_name(std::move(name)), m_notes(notes) {}
    void append(std::int64_t time, std::uint32_t processId, std::uint32_t threadId, std::uint32_t level,
                std::string_view source, std::string_view message, std::uint32_t extra) override
    {
        EXPECT_EQ(std::tuple(time, processId, threadId, source, extra),
                  std::tuple(42, tessaly::platform::processId(), tessaly::platform::threadId(), "test", 0U));
        m_notes += m_name + ":" + std::to_string(level) + ":" + std::string(message) + " ";
    }

private:
    std::string m_name;
    std::string& m_notes;
};

class LogRecTest : public testing::Test
{
protected:
    LogRecTest()
    {
        setClock([]() -> std::int64_t { return 42; });
        EXPECT_EQ(sender.level(), 0U) << "a new sender is off";
        EXPECT_TRUE(sender.appenders().add(2, std::make_shared<NotingAppender>("b", notes)).ok());
        sender.setLevel(Trace);
    }
    ~LogRecTest() override
    {
        setClock(nullptr);
        EXPECT_NE(now(), 42);
        EXPECT_EQ(sender.release(), 0U) << "a record kept its reference";
    }

    std::string notes;
    LogSender<char>& sender = *LogSender<char>::instance();
};

TEST_F(LogRecTest, SendsWhatTheLevelLetsThrough)
{
    std::string expected;
    for (std::uint32_t current = Off; current <= Trace; ++current) {
        sender.setLevel(current);
        notes.clear();
        for (std::uint32_t level = Off; level <= Trace; ++level)
            log(Level(level), "test") << "x";
        if (current > 0)
            expected += "b:" + std::to_string(current) + ":x ";
        EXPECT_EQ(notes, expected) << "at level " << current;
    }
}

TEST_F(LogRecTest, StreamsNumbersTextsAndPairsAndSendsAgainOnlyWhatIsNew)
{
    const char* none = nullptr;
    log(Debug, "test") << "a" << 1234567 << std::string("b") << -2.5 << 'c' << 18446744073709551615U << none;
    log(Debug, "test") << L"\u20AC" << std::wstring(L"\u65E5") << static_cast<const wchar_t*>(nullptr);
    log(Debug, "test") << std::array{1, 2, 3, 4} << ' ' << std::array{5U, 4003U, 0U, 0U, 1U, 2U};
    {
        LogRec<char> record(&sender, Error, "test");
        record << "one";
        record.flush();
        record << "two";
    }
    EXPECT_EQ(notes, "b:5:a1234567b-2.5c18446744073709551615 b:5:\u20AC\u65E5 "
                     "b:5:1/2,3/4 5/4003,0/0,1/2 b:2:one b:2:two ");
}

TEST_F(LogRecTest, DispatchesToEnabledAppendersInOrder)
{
    auto& appenders = sender.appenders();
    const auto first = std::make_shared<NotingAppender>("a", notes);
    EXPECT_EQ(appenders.add(2, first), err::library(err::Busy));
    ASSERT_TRUE(appenders.add(1, first).ok());
    log(Fatal, "test") << 1;
    appenders.setEnabled(1, false);
    log(Fatal, "test") << 2;
    appenders.setEnabled(1, true);
    appenders.remove(2);
    log(Fatal, "test") << 3;
    EXPECT_EQ(notes, "a:1:1 b:1:1 b:1:2 a:1:3 ");
}

TEST(LogSender, EndsItsAppendersOutsideItsLock)
{
    std::string notes;
    std::future<std::uint32_t> asked; // by another thread
    const auto end = [&asked](LogAppender<char>* appender) {
        delete appender;
        asked = std::async(std::launch::async, [] { return LogSender<char>::instance()->level(); });
        EXPECT_EQ(asked.wait_for(std::chrono::seconds(2)), std::future_status::ready);
    };
    LogSender<char>& sender = *LogSender<char>::instance();
    ASSERT_TRUE(sender.appenders().add(1, {new NotingAppender("a", notes), end}).ok());
    sender.setLevel(Trace);
    EXPECT_EQ(sender.release(), 0U);
    ASSERT_TRUE(asked.valid());
    EXPECT_EQ(asked.get(), Off) << "that of a new sender";
    EXPECT_EQ(LogSender<char>::instance()->release(), 0U);
}

} // namespace
