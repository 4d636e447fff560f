#include "window/WindowHarness.h"

#include "common/settings/CAppSettings.h"
#include "support/OwnMemory.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/style/CLinkLabel.h"

#include <QComboBox>
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

using namespace thisapp;
using test::WindowHarness;
namespace fs = std::filesystem;

namespace {

/// DES_EDE3, the slowest of all.
constexpr AlgSelection SlowAlgorithm{1, 601};

using OfferedAlgorithmTest = test::WindowTest;

/// The link stands until anything else happens.
TEST_F(OfferedAlgorithmTest, OffersTheAlgorithmThatFits)
{
    const test::UrlRecorder opened;
    for (const bool seal : {false, true}) {
        set({{"SealFiles", seal}});
        w.writeInput("in", 1000);
        ASSERT_TRUE(w.form().algFrame().setSelection({1, 452}));
        encrypt();
        ASSERT_TRUE(w.waitForEnd());
        auto& link = *w.window->findChild<CMessageLine*>("inputMessage")->findChild<CLinkLabel*>();
        const std::function<void()> happenings[] = {
            [this] { w.output().setText(w.path("elsewhere")); },
            [this] { QTest::keyClick(w.form().algFrame().findChild<QComboBox*>(), Qt::Key_Down); },
            [this] { QTest::keyClick(w.window.get(), Qt::Key_F9, Qt::ControlModifier); }, // any command
            [] {},
        };
        for (const auto& happens : happenings) {
            const bool taken = &happens == std::end(happenings) - 1;
            ASSERT_TRUE(w.form().algFrame().setSelection({1, 252}));
            run(Qt::Key_F6, w.path("out"), w.path("back"));
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(w.text("inputMessage"), "This file was encrypted with Serpent-256.");
            EXPECT_EQ(link.accessibleName(), "Decrypt with Serpent-256");
            happens();
            EXPECT_EQ(link.isVisible(), taken);
            QTest::keyClick(&link, Qt::Key_Return);
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(fs::exists(folder() / "back"), taken) << w.result();
        }
        EXPECT_EQ(w.algorithms.displayName(w.form().algFrame().selection()), "Serpent-256");
        EXPECT_EQ(test::readFile(folder() / "in"), test::readFile(folder() / "back"));
        fs::remove(folder() / "out");
        fs::remove(folder() / "back");
    }
}

TEST_F(OfferedAlgorithmTest, KeepsThePasswordOnlyForAnOffer)
{
    static constexpr char Password[] = "Zebras cross 4711 times"; // where nobody can write
    w.writeInput("in", 32 << 20);
    ASSERT_TRUE(w.form().algFrame().setSelection(SlowAlgorithm));
    run(Qt::Key_F5, w.path("in"), w.path("out"), Password);
    ASSERT_TRUE(w.waitForEnd());
    run(Qt::Key_F6, w.path("out"), w.path("back"), Password);
    ASSERT_TRUE(QTest::qWaitFor([this] { return w.progress().percent() > 0; }, WindowHarness::JobTimeoutMs));
    ASSERT_TRUE(w.isRunning());
    EXPECT_FALSE(test::isInMemory(Password)) << "the algorithm is the right one";
    QTest::mouseClick(&w.button("buttonStop"), Qt::LeftButton);
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File decryption was canceled");
    EXPECT_FALSE(fs::exists(folder() / "back"));

    const auto makeOffer = [this] {
        ASSERT_TRUE(w.form().algFrame().setSelection({1, 252}));
        run(Qt::Key_F6, w.path("out"), w.path("back"), Password);
        ASSERT_TRUE(w.waitForEnd());
        EXPECT_NE(w.text("inputMessage"), "");
        EXPECT_TRUE(test::isInMemory(Password)) << "for the offer";
    };
    makeOffer();
    w.window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(w.path("out"))}); // which is there already
    EXPECT_EQ(w.text("inputMessage"), "");
    EXPECT_FALSE(test::isInMemory(Password)) << "nothing is offered any more";
    w.output().setText(w.path("elsewhere"));
    EXPECT_EQ(w.text("inputMessage"), "") << "an old sentence is back";
    makeOffer();
    w.window->close();
    EXPECT_FALSE(test::isInMemory(Password)) << "the process may live on for a while";
}

TEST(OfferTest, EndsByItself)
{
    CAppSettings().clear();
    CAppSettings().setValue("UseConfirmPassword", false);
    WindowHarness w(lookAtInput, WindowHarness::Cheap, std::chrono::milliseconds(1));
    w.writeInput("in", 100);
    for (const auto& [key, input, output, algorithm] :
         {std::tuple(Qt::Key_F5, "in", "out", 452U), std::tuple(Qt::Key_F6, "out", "back", 252U)}) {
        ASSERT_TRUE(w.form().algFrame().setSelection({1, algorithm}));
        w.input().setText(w.path(input));
        w.output().setText(w.path(output));
        w.answerPassword("secret");
        QTest::keyClick(w.window.get(), key);
        ASSERT_TRUE(w.waitForEnd());
    }
    EXPECT_NE(w.text("inputMessage"), "");
    const auto& link = *w.window->findChild<CMessageLine*>("inputMessage")->findChild<CLinkLabel*>();
    EXPECT_TRUE(QTest::qWaitFor([&link] { return !link.isVisible(); }, WindowHarness::JobTimeoutMs));
}

} // namespace
