#include "lib/err/ErrorCodes.h"
#include "lib/logger/Clock.h"
#include "lib/logger/Log.h"
#include "lib/platform/Process.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tessaly::logger;
using namespace tessaly::logger::internal;
namespace err = tessaly::err;

using Messages = std::vector<std::string>;

/// Notes each line as "name:level:message".
class NotingAppender final : public LogAppender<char>
{
public:
    NotingAppender(std::string name, Messages& notes) : m_name(std::move(name)), m_notes(notes) {}
    void append(std::int64_t time, std::uint32_t processId, std::uint32_t threadId, std::uint32_t level,
                std::string_view source, std::string_view message, std::uint32_t extra) override
    {
        EXPECT_EQ(time, 42);
        EXPECT_EQ(processId, tessaly::platform::processId());
        EXPECT_EQ(threadId, tessaly::platform::threadId());
        EXPECT_EQ(source, "test");
        EXPECT_EQ(extra, 0U);
        m_notes.push_back(m_name + ":" + std::to_string(level) + ":" + std::string(message));
    }

private:
    std::string m_name;
    Messages& m_notes;
};

class LogRecTest : public testing::Test
{
protected:
    LogRecTest()
    {
        setClock([]() -> std::int64_t { return 42; });
        EXPECT_TRUE(sender.appenders().add(2, std::make_shared<NotingAppender>("b", notes)).ok());
    }
    ~LogRecTest() override
    {
        setClock(nullptr);
        EXPECT_NE(now(), 42);
        EXPECT_EQ(sender.release(), 0U) << "a record kept its reference";
    }

    Messages notes;
    LogSender<char>& sender = *LogSender<char>::instance();
};

TEST_F(LogRecTest, SendsWhatTheLevelLetsThrough)
{
    EXPECT_EQ(sender.level(), 0U) << "a new sender is off";
    for (std::uint32_t current = Off; current <= Trace; ++current) {
        sender.setLevel(current);
        notes.clear();
        Messages expected;
        for (std::uint32_t level = Off; level <= Trace; ++level) {
            log(Level(level), "test") << "x";
            if (level >= 1 && level <= current)
                expected.push_back("b:" + std::to_string(level) + ":x");
        }
        EXPECT_EQ(notes, expected) << "at level " << current;
    }
}

TEST_F(LogRecTest, StreamsNumbersTextsAndPairs)
{
    sender.setLevel(Trace);
    const char* none = nullptr;
    log(Debug, "test") << "a" << 1234567 << std::string("b") << -2.5 << 'c' << 18446744073709551615U << none;
    log(Debug, "test") << L"\u20AC" << std::wstring(L"\u65E5") << static_cast<const wchar_t*>(nullptr);
    log(Debug, "test") << std::array{1, 2, 3, 4} << ' ' << std::array{5U, 4003U, 0U, 0U, 1U, 2U};
    EXPECT_EQ(notes, (Messages{"b:5:a1234567b-2.5c18446744073709551615", "b:5:\u20AC\u65E5",
                               "b:5:1/2,3/4 5/4003,0/0,1/2"}));
}

TEST_F(LogRecTest, SendsAgainOnlyWhatIsNew)
{
    sender.setLevel(Trace);
    {
        LogRec<char> record(&sender, Error, "test");
        record << "one";
        record.flush();
        record << "two";
    }
    EXPECT_EQ(notes, (Messages{"b:2:one", "b:2:two"}));
}

TEST_F(LogRecTest, DispatchesToEnabledAppendersInOrder)
{
    sender.setLevel(Trace);
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
    EXPECT_EQ(notes, (Messages{"a:1:1", "b:1:1", "b:1:2", "a:1:3"}));
}

/// Its end needs the sender, from another thread.
class LastWords final : public LogAppender<char>
{
public:
    explicit LastWords(bool& unlocked) : m_unlocked(unlocked) {}
    ~LastWords() override
    {
        auto asked = std::async(std::launch::async, [] { return LogSender<char>::instance()->level(); });
        m_unlocked = asked.wait_for(std::chrono::seconds(2)) == std::future_status::ready;
        std::thread([late = std::move(asked)]() mutable { late.wait(); }).detach();
    }
    void append(std::int64_t, std::uint32_t, std::uint32_t, std::uint32_t, std::string_view, std::string_view,
                std::uint32_t) override
    {
    }

private:
    bool& m_unlocked;
};

TEST(LogSender, EndsItsAppendersOutsideItsLock)
{
    bool unlocked = false;
    LogSender<char>& sender = *LogSender<char>::instance();
    ASSERT_TRUE(sender.appenders().add(1, std::make_shared<LastWords>(unlocked)).ok());
    EXPECT_EQ(sender.release(), 0U);
    EXPECT_TRUE(unlocked);
}

} // namespace
