#include "window/WindowHarness.h"

#include "crypto/sealed/Argon2.h"
#include "support/OwnMemory.h"

namespace test {

/// How long the window keeps what the user has entered. Each text stands nowhere that can be written to.
class PasswordTest : public WindowTest
{
protected:
    void startList(const char* password)
    {
        answerPassword(password);
        press(Qt::Key_F5);
    }
    void makeOffer(const char* password)
    {
        select(252);
        run(Qt::Key_F6, "out", "back", password);
        EXPECT_NE(text("inputMessage"), "");
        EXPECT_TRUE(isInMemory(password)) << "for the offer";
    }
};

TEST_F(PasswordTest, IsKeptOnlyForAnOffer)
{
    static constexpr char Password[] = "Zebras cross 4711 times";
    writeInput("in", 64 << 20);
    select(SlowAlgorithm);
    run(Qt::Key_F5, "in", "out", Password);
    start(Qt::Key_F6, "out", "back", Password);
    ASSERT_TRUE(waitFor([] { return !isInMemory(Password); }));
    ASSERT_TRUE(isRunning()) << "it has no use for it once the algorithm is the right one";
    button("buttonStop").click();
    EXPECT_EQ(waitForEnd(), "File decryption was canceled");
    EXPECT_FALSE(exists("back"));

    makeOffer(Password);
    window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(path("out"))}); // which is there already
    EXPECT_EQ(text("inputMessage"), "");
    EXPECT_FALSE(isInMemory(Password)) << "nothing is offered any more";
    output().setText(path("elsewhere"));
    EXPECT_EQ(text("inputMessage"), "") << "an old sentence is back";
    makeOffer(Password);
    window->close();
    EXPECT_FALSE(isInMemory(Password)) << "the process may live on for a while";
}

/// For a sealed file it is needed no more once there is a key, nor the key once the offer has gone.
TEST_F(PasswordTest, GivesWayToAKey)
{
    static constexpr char Password[] = "Walnuts hum 1312 at night";
    set({{"SealFiles", true}});
    writeInput("in");
    run(Qt::Key_F5, "in", "out", Password);
    select(452);
    run(Qt::Key_F6, "out", "none", Password);
    EXPECT_EQ(text("inputMessage"), "This file was encrypted with AES-256.");
    EXPECT_FALSE(isInMemory(Password));
    output().setText(path("elsewhere"));
    const std::string salt = read("out").substr(0, 32);
    tessaly::SecretBytes root;
    ASSERT_TRUE(
        tessaly::crypto::argon2id(tessaly::SecretText(Password), {salt.begin(), salt.end()}, Cheap, root)
            .ok());
    std::ranges::for_each(root, [](auto& byte) { byte ^= 0xff; }); // as it stands nowhere else
    EXPECT_FALSE(isInMemory({reinterpret_cast<const char*>(root.data()), root.size()}, '\xff'));
}

TEST_F(PasswordTest, IsKeptForTheNextFileOfAList)
{
    static constexpr char Password[] = "Beavers yodel 0704 in May";
    set({{"RewriteOutputFile", true}});
    for (const char* name : {"a", "b"})
        writeInput(name);
    window->processCommandLine({path("a"), path("b")});
    startList(Password);
    EXPECT_EQ(waitForEnd(), "2 of 2 files encrypted");
    EXPECT_FALSE(isInMemory(Password)) << "there is no more to do";

    fs::resize_file(folder / "a", 4LL << 30);
    select(SlowAlgorithm);
    startList(Password);
    ASSERT_TRUE(waitFor([this] { return progress().percent() > 0; }));
    EXPECT_TRUE(isInMemory(Password));
    press(Qt::Key_F8);
    EXPECT_FALSE(isInMemory(Password));
    EXPECT_EQ(waitForEnd(), "Stopped: 0 of 2 files encrypted, 2 skipped");
}

} // namespace test
