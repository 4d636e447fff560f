#include "window/WindowHarness.h"

#include <QAccessible>

namespace test {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, FitsTheScreenAndComesBackAsItWas)
{
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
    EXPECT_LE(window->minimumSizeHint().height(), 300);
    const auto hintHeight = [this] {
        QCoreApplication::processEvents();
        return hint().height();
    };
    const int idle = hintHeight();
    writeInput("in");
    window->processCommandLine({path("in")});
    const auto words = [] { return QString("word ").repeated(60); };
    progress().setProgress(50, {MessageKind::Plain, words});
    for (const Area area : {Area::Input, Area::Output, Area::Result})
        form().showMessage(area, {MessageKind::Error, words});
    EXPECT_EQ(hintHeight(), idle) << "whatever there is to say";
    window->setGeometry(70, 60, 420, 380);
    window->close();
    {
        const WindowHarness other;
        EXPECT_GT(other.window->y(), 60) << "the first one is not covered";
        other.window->close(); // and does not take its place
    }
    window.reset();
    ASSERT_TRUE(options.storeDefaultAlgorithm({1, 452}));
    WindowHarness next;
    EXPECT_EQ(next.window->geometry(), QRect(70, 60, 420, 380));
    EXPECT_EQ(next.algorithm(), "Serpent-256");
}

TEST_F(MainWindowTest, TellsAScreenReaderWhatIsWhat)
{
    writeInput("in");
    window->processCommandLine({path("in")});
    progress().setProgress(50, {});
    const auto tell = [](QWidget& widget, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(&widget)->text(what);
    };
    for (const char* name : {"buttonEncrypt", "buttonDecrypt", "buttonStop"})
        EXPECT_NE(button(name).accessibleDescription(), "");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&hint())->role(), QAccessible::Button);
    EXPECT_EQ(tell(hint(), QAccessible::Name) + tell(hint(), QAccessible::Description), "in10 bytes");
    EXPECT_EQ(tell(find<QProgressBar>(), QAccessible::Name), "Progress");
    EXPECT_TRUE(input().toolTip().contains(path("in")));
    const QPalette& palette = input().palette();
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text),
              palette.color(QPalette::Active, QPalette::Text))
        << "names are to be read while a job runs";
}

} // namespace test
