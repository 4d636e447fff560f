#include "window/WindowHarness.h"

#include "support/OwnMemory.h"

namespace test {

using OfferTest = WindowTest;

/// The link stands until anything else happens.
TEST_F(OfferTest, OffersTheAlgorithmThatFits)
{
    const UrlRecorder opened;
    for (const bool seal : {false, true}) {
        set({{"SealFiles", seal}});
        writeInput("in", 1000);
        select(452);
        encrypt();
        const std::function<void()> happenings[] = {
            [this] { output().setText(path("elsewhere")); },
            [this] { QTest::keyClick(&child<QComboBox>(form().algFrame()), Qt::Key_Down); },
            [this] { press(Qt::Key_F9, Qt::ControlModifier); }, // any command
            [] {},
        };
        for (const auto& happens : happenings) {
            const bool taken = &happens == std::end(happenings) - 1;
            select(252);
            decrypt();
            EXPECT_EQ(text("inputMessage"), "This file was encrypted with Serpent-256.");
            EXPECT_EQ(link("inputMessage").accessibleName(), "Decrypt with Serpent-256");
            happens();
            EXPECT_EQ(link("inputMessage").isVisible(), taken);
            QTest::keyClick(&link("inputMessage"), Qt::Key_Return);
            waitForEnd();
            EXPECT_EQ(exists("back"), taken) << result();
        }
        EXPECT_EQ(algorithm(), "Serpent-256");
        EXPECT_EQ(read("in"), read("back"));
        fs::remove(folder / "out");
        fs::remove(folder / "back");
    }
}

TEST_F(OfferTest, KeepsThePasswordOnlyForAnOffer)
{
    static constexpr char Password[] = "Zebras cross 4711 times"; // where nobody can write
    writeInput("in", 32 << 20);
    select(SlowAlgorithm);
    run(Qt::Key_F5, "in", "out", Password);
    start(Qt::Key_F6, "out", "back", Password);
    ASSERT_TRUE(waitFor([this] { return progress().percent() > 0; }));
    ASSERT_TRUE(isRunning());
    EXPECT_FALSE(isInMemory(Password)) << "the algorithm is the right one";
    button("buttonStop").click();
    EXPECT_EQ(waitForEnd(), "File decryption was canceled");
    EXPECT_FALSE(exists("back"));

    const auto makeOffer = [this] {
        select(252);
        run(Qt::Key_F6, "out", "back", Password);
        EXPECT_NE(text("inputMessage"), "");
        EXPECT_TRUE(isInMemory(Password)) << "for the offer";
    };
    makeOffer();
    window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(path("out"))}); // which is there already
    EXPECT_EQ(text("inputMessage"), "");
    EXPECT_FALSE(isInMemory(Password)) << "nothing is offered any more";
    output().setText(path("elsewhere"));
    EXPECT_EQ(text("inputMessage"), "") << "an old sentence is back";
    makeOffer();
    window->close();
    EXPECT_FALSE(isInMemory(Password)) << "the process may live on for a while";
}

struct ShortOfferTest : WindowTest
{
    ShortOfferTest() : WindowTest(lookAtInput, Cheap, std::chrono::milliseconds(1)) {}
};

TEST_F(ShortOfferTest, EndsByItself)
{
    writeInput("in", 100);
    select(452);
    encrypt();
    select(252);
    decrypt();
    EXPECT_NE(text("inputMessage"), "");
    EXPECT_TRUE(waitFor([this] { return !link("inputMessage").isVisible(); }));
}

} // namespace test
