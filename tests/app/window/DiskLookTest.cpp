#include "window/WindowHarness.h"

#include <climits>
#include <condition_variable>

namespace test {

/// Answers of a slow mount, given when the test says so.
class SlowMount
{
public:
    InputFacts operator()(const QString& text, const NamingSettings& naming)
    {
        ++looks;
        std::unique_lock lock(m_mutex);
        m_news.wait(lock, [&] { return text.size() >= m_least; });
        ++answers;
        return lookAtInput(text, naming);
    }
    /// Answers are given for texts of that length or longer.
    void answerFrom(int length)
    {
        const std::scoped_lock lock(m_mutex);
        m_least = length;
        m_news.notify_all();
    }

    std::atomic<int> looks = 0;
    std::atomic<int> answers = 0;

private:
    std::mutex m_mutex;
    std::condition_variable m_news;
    int m_least = 0;
};

class SlowFileSystemTest : protected SlowMount, public WindowTest
{
protected:
    SlowFileSystemTest() : WindowTest(std::ref(static_cast<SlowMount&>(*this))) {}
};

/// The newest answer comes first.
TEST_F(SlowFileSystemTest, IsLookedAtOnceForEachChangeWithoutStalling)
{
    for (const char* name : {"a", "ab", "abc"})
        folder.write(name, "");
    input().setText(path(""));
    ASSERT_TRUE(waitFor([this] { return answers == 1; }));
    looks = answers = 0;
    answerFrom(INT_MAX);
    for (const char letter : {'a', 'b', 'c'}) {
        QTest::keyClick(&input(), letter);
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(waitFor([this] { return looks == 3; }));
    EXPECT_EQ(answers, 0) << "and the window has not waited for them";
    answerFrom(path("abc").size());
    ASSERT_TRUE(waitFor([this] { return !output().text().isEmpty(); }));
    EXPECT_EQ(output().text(), path("abc.enc"));
    answerFrom(0);
    ASSERT_TRUE(waitFor([this] { return answers == 3; })); // which nobody wants any more
    EXPECT_EQ(hint().accessibleName(), "abc");
    QTest::keyClick(&input(), 'd');
    ASSERT_TRUE(waitFor([this] { return hint().accessibleName() == "Drop files here"; }));
    EXPECT_EQ(output().text(), path("abc.enc"));
    EXPECT_EQ(looks, 4);

    // A drop that the user has typed over has nothing to say any more.
    answerFrom(INT_MAX);
    window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(path("a")), QUrl("https://example.org/x")});
    QTest::keyClick(&input(), 'b');
    answerFrom(0);
    ASSERT_TRUE(waitFor([this] { return hint().accessibleName() == "ab"; }));
    EXPECT_EQ(text("inputMessage"), "");

    // A command that can't do without the answer waits for it; an output given meanwhile stays.
    for (const char* given : {"", "mine"}) {
        output().clear();
        answerFrom(INT_MAX);
        looks = 0;
        window->processCommandLine({"-ifile", path("ab")});
        if (*given)
            output().setText(path(given));
        answerPassword("");
        QTimer::singleShot(0, window.get(), [this] { answerFrom(0); });
        press(Qt::Key_F5);
        EXPECT_EQ(result(), "Password not defined");
        EXPECT_EQ(output().text(), path(*given ? given : "ab.enc"));
        EXPECT_EQ(looks, 1);
    }
}

} // namespace test
