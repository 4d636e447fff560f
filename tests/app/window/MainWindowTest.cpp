#include "window/WindowHarness.h"

#include "support/Environment.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"

#include <QAccessible>

namespace test {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, FitsTheScreenAndComesBackWhereItWas)
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
    EXPECT_EQ(WindowHarness().window->geometry(), QRect(70, 60, 420, 380));
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

TEST_F(MainWindowTest, ChoosesAnAlgorithmForNowOrForGood)
{
    for (const auto& [name, forGood] : {std::pair("Serpent-256", false), std::pair("AES-128", true)}) {
        onDialog<CSetAlgDialog>([name = name, forGood = forGood](CSetAlgDialog& dialog) {
            auto& list = child<QListWidget>(dialog);
            list.setCurrentItem(list.findItems(name, Qt::MatchExactly).value(0));
            child<QCheckBox>(dialog).setChecked(forGood);
            dialog.accept();
        });
        trigger("default-algorithm");
        EXPECT_EQ(algorithm(), name);
        EXPECT_EQ(WindowHarness().algorithm(), forGood ? name : "AES-256");
    }
    onDialog<CAlgInfoDialog>([](CAlgInfoDialog& dialog) {
        EXPECT_TRUE(child<QListWidget>(dialog).currentItem()->text().contains("AES-128"));
        dialog.reject();
    });
    trigger("algorithm-info");
}

TEST_F(MainWindowTest, TellsOfWhatCannotBeSaved)
{
    folder.write("file", "");
    const Environment nowhere("XDG_CONFIG_HOME", (folder / "file").c_str());
    QStringList messages;
    onDialog<COptionsDialog>([&](COptionsDialog& dialog) {
        const auto& message = child<QLineEdit>(dialog, "lineEditMsg");
        messages += message.text();
        onDialog<COptionsDialog>([&](COptionsDialog& again) {
            messages += message.text();
            again.onUiCancel();
        });
        dialog.onUiOk();
    });
    trigger("options");
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "");
    EXPECT_TRUE(messages[1].startsWith("The options can't be saved in ")) << messages[1].toStdString();

    onDialog<CSetAlgDialog>([](CSetAlgDialog& dialog) {
        child<QCheckBox>(dialog).setChecked(true);
        dialog.accept();
    });
    trigger("default-algorithm");
    EXPECT_EQ(result(), messages[1].toStdString());
}

} // namespace test
