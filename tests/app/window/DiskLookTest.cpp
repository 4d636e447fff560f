#include "window/WindowHarness.h"

#include "app/widgets/CDropHint.h"
#include "common/settings/CAppSettings.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <condition_variable>
#include <mutex>

using namespace thisapp;
using test::WindowHarness;

namespace {

/// Answers of a slow mount, given when the test says so.
class SlowMount
{
public:
    thisapp::InputFacts operator()(const QString& text, const NamingSettings& naming)
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

/// The newest answer comes first.
TEST(SlowFileSystemTest, IsLookedAtOnceForEachChangeWithoutStalling)
{
    CAppSettings().clear();
    SlowMount mount;
    WindowHarness w(std::ref(mount));
    const auto eventually = [](const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, WindowHarness::JobTimeoutMs);
    };
    for (const char* name : {"a", "ab", "abc"})
        w.folder.write(name, "");
    w.input().setText(w.path(""));
    ASSERT_TRUE(eventually([&mount] { return mount.answers == 1; }));
    mount.looks = mount.answers = 0;
    mount.answerFrom(INT_MAX);
    for (const char letter : {'a', 'b', 'c'}) {
        QTest::keyClick(&w.input(), letter);
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(eventually([&mount] { return mount.looks == 3; }));
    EXPECT_EQ(mount.answers, 0) << "and the window has not waited for them";
    mount.answerFrom(w.path("abc").size());
    ASSERT_TRUE(eventually([&w] { return !w.output().text().isEmpty(); }));
    EXPECT_EQ(w.output().text(), w.path("abc.enc"));
    mount.answerFrom(0);
    ASSERT_TRUE(eventually([&mount] { return mount.answers == 3; })); // which nobody wants any more
    const auto& hint = *w.window->findChild<CDropHint*>();
    EXPECT_EQ(hint.accessibleName(), "abc");
    QTest::keyClick(&w.input(), 'd');
    ASSERT_TRUE(eventually([&hint] { return hint.accessibleName() == "Drop files here"; }));
    EXPECT_EQ(w.output().text(), w.path("abc.enc"));
    EXPECT_EQ(mount.looks, 4);

    // A drop that the user has typed over has nothing to say any more.
    mount.answerFrom(INT_MAX);
    w.window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(w.path("a")), QUrl("https://example.org/x")});
    QTest::keyClick(&w.input(), 'b');
    mount.answerFrom(0);
    ASSERT_TRUE(eventually([&hint] { return hint.accessibleName() == "ab"; }));
    EXPECT_EQ(w.text("inputMessage"), "");

    // A command that can't do without the answer waits for it; an output given meanwhile stays.
    for (const char* given : {"", "mine"}) {
        w.output().clear();
        mount.answerFrom(INT_MAX);
        mount.looks = 0;
        w.window->processCommandLine({"-ifile", w.path("ab")});
        if (*given)
            w.output().setText(w.path(given));
        w.answerPassword("");
        QTimer::singleShot(0, w.window.get(), [&mount] { mount.answerFrom(0); });
        QTest::keyClick(w.window.get(), Qt::Key_F5);
        EXPECT_EQ(w.result(), "Password not defined");
        EXPECT_EQ(w.output().text(), w.path(*given ? given : "ab.enc"));
        EXPECT_EQ(mount.looks, 1);
    }
}

} // namespace
