#include "app/job/JobRequest.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <tuple>

using namespace thisapp;
using namespace tessaly;
namespace fs = std::filesystem;

namespace {

/// A window made of variables: what the fields hold and what the user answers.
struct FakeHost final : IJobRequestHost, IMessageAreas
{
    bool running = false;
    AlgSelection selected = DefaultAlgSelection;
    QString input, output;
    std::function<bool(PasswordEntry&)> password = [](PasswordEntry&) { return false; };
    std::function<bool(KeyEntry&)> key = [](KeyEntry&) { return false; };
    bool engine = true;
    bool answers = true;
    std::pair<Area, std::string> message;

    bool isJobRunning() const override { return running; }
    AlgSelection selection() const override { return selected; }
    QString inputText() const override { return input; }
    QString outputText() const override { return output; }
    void setInputText(const QString& text) override { input = text; }
    void setOutputText(const QString& text) override { output = text; }
    std::optional<std::filesystem::path> resolve(const QString& text) override
    {
        return answers ? std::optional(textPath(meantPath(text))) : std::nullopt;
    }
    std::optional<RequestFacts> look(const std::filesystem::path& in,
                                     const std::filesystem::path& out) override
    {
        return answers ? std::optional(lookAtRequest(in, out)) : std::nullopt;
    }
    QString chooseInput(const QString&) override { return {}; }
    QString chooseOutput(const QString&) override { return {}; }
    OnEncrypted askAboutEncrypted(int, int) override { return OnEncrypted::Cancel; }
    bool enterPassword(PasswordEntry& entry) override { return password(entry); }
    bool enterKeyAndIv(KeyEntry& entry) override { return key(entry); }
    bool prepareEngine(Operation, const AlgSelection&) override { return engine; }
    void showMessage(Area area, Message text) override { message = {area, text.now().toStdString()}; }
};

class JobRequestTest : public ::testing::TestWithParam<Operation>
{
protected:
    const bool encrypts = GetParam() == Operation::Encrypt;

    std::optional<SEncryptData> run() { return JobRequest(GetParam(), host, host).run(); }
    /// Of a text for the encryption, that of the operation that is tested.
    std::string said(const char* encryption) const
    {
        QString text = encryption;
        if (!encrypts)
            text.replace("encrypt", "decrypt").replace("Encrypt", "Decrypt");
        return text.toStdString();
    }
    void expectRefusal(Area area, const std::string& text)
    {
        host.message = {};
        EXPECT_FALSE(run());
        EXPECT_EQ(host.message, std::pair(area, text));
        EXPECT_EQ(test::readFile(folder / "in.txt"), "input") << text;
        EXPECT_EQ(test::readFile(folder / "out.txt"), "former output") << text;
    }
    void SetUp() override
    {
        CAppSettings().clear();
        folder.write("in.txt", "input");
        folder.write("out.txt", "former output");
    }
    QString path(const char* name) const { return QString::fromStdString(folder / name); }

    test::TempFolder folder;
    FakeHost host;
};

INSTANTIATE_TEST_SUITE_P(, JobRequestTest, ::testing::Values(Operation::Encrypt, Operation::Decrypt));

bool enterSecret(PasswordEntry& entry)
{
    entry.password = SecretText("secret");
    return true;
}

std::function<bool(KeyEntry&)> enterKey(std::size_t keySize, std::size_t ivSize)
{
    return [=](KeyEntry& entry) {
        entry.key = SecretBytes(keySize, 1);
        entry.iv = SecretBytes(ivSize, 2);
        return true;
    };
}

/// The window's own tests have the files that are refused. Each line mends one thing, and the next check
/// speaks.
TEST_P(JobRequestTest, ChecksInOrderAndChangesNothing)
{
    host.input = " " + path("in.txt") + " ";
    host.output = path("out.txt");
    host.running = true;
    host.selected = {};
    host.engine = host.answers = false;
    expectRefusal(Area::Progress, "Encryption/Decryption already running.");
    host.running = false;
    expectRefusal(Area::Progress, said("Encryption algorithm is not defined."));
    host.selected.library = 1;
    expectRefusal(Area::Progress, said("Encryption algorithm is not defined."));
    host.selected = DefaultAlgSelection;
    expectRefusal(Area::Input, "The file system does not answer.");
    host.answers = true;
    host.password = [](PasswordEntry&) { return true; }; // accepted, but empty
    expectRefusal(Area::Result, "Password not defined");
    host.password = [](PasswordEntry& entry) { return entry.switchToAdvanced = true; };
    host.key = enterKey(31, 15);
    expectRefusal(Area::Result, "Invalid IV size. Entered 15 bytes");
    host.key = enterKey(31, 16);
    expectRefusal(Area::Result, "Invalid key size. Entered 16 bytes"); // the size of the IV
    host.key = enterKey(32, 16);
    expectRefusal(Area::Result, said("Failed to prepare encryption engine."));
    host.engine = true;
    expectRefusal(Area::Result, "Output file already exists! A 'not rewrite' option has been selected.");

    host.password = [](PasswordEntry& entry) {
        return entry.seal = entry.rewriteOutput = entry.switchToAdvanced = true;
    };
    const auto request = run();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->operation, GetParam());
    EXPECT_EQ(request->request.input, folder.at("in.txt"));
    EXPECT_TRUE(request->request.seal && request->rewriteOutput);
    EXPECT_EQ(request->request.existing, crypto::ExistingOutput::RemoveFirst);
    EXPECT_EQ(test::readFile(folder / "out.txt"), "former output") << "the worker removes it";
}

/// The fields of a decryption show no switches to seal and to salt.
TEST_P(JobRequestTest, AsksOnceForAList)
{
    CAppSettings().setValue("SealFiles", true);
    CAppSettings().setValue("UseSalt", true);
    const QStringList names{"a.txt", "b", "c"};
    host.password = [&names](PasswordEntry& entry) { return entry.names == names && enterSecret(entry); };
    const auto job = JobRequest(GetParam(), host, host).runForList(names);
    ASSERT_TRUE(job) << host.message.second;
    EXPECT_EQ(job->request.seal, encrypts);
    EXPECT_EQ(job->request.useSalt, encrypts);
}

/// "in.txt" and "in.txt " are two files; to take one for the other would delete the wrong one. What a
/// text means is settled once.
TEST_P(JobRequestTest, TakesATextThatNamesAFileAsItStands)
{
    const auto before = fs::current_path();
    host.password = [](PasswordEntry& entry) { return entry.rewriteOutput = enterSecret(entry); };
    for (const char* name : {"  ", "in.txt ", "out.txt "})
        folder.write(name, "");
    if (test::readFile(folder / "in.txt").empty())
        GTEST_SKIP() << "the system cuts blanks off";
    fs::current_path(folder.path());
    const std::array<const char*, 4> cases[] = {
        // the fields; the files
        {"in.txt ", "out.txt ", "in.txt ", "out.txt "},
        {"in.txt  ", "out.txt  ", "in.txt", "out.txt"},
        {"in.txt", "new ", "in.txt", "new"},
        {"  ", "new", "  ", "new"},
    };
    for (const auto& [inputText, outputText, input, output] : cases) {
        host.input = inputText;
        host.output = outputText;
        const auto data = run();
        ASSERT_TRUE(data) << host.message.second;
        EXPECT_EQ(data->request.input, input);
        EXPECT_EQ(data->request.output, output);
    }
    fs::current_path(before);
}

TEST_P(JobRequestTest, GoesBackAndForthBetweenTheDialogs)
{
    host.input = path("in.txt");
    host.output = path("new");
    using Switches = std::array<bool, 3>; // seal, salt, rewriting
    const auto turn = [](auto& entry, const Switches& before, const Switches& after) {
        EXPECT_EQ((Switches{entry.seal, entry.useSalt, entry.rewriteOutput}), before);
        std::tie(entry.seal, entry.useSalt, entry.rewriteOutput) = std::tuple_cat(after);
    };
    for (const int bits : {0b001, 0b010, 0b100, 0b011, 0b101, 0b110})
        for (const bool endsWithKey : {false, true}) {
            const Switches first{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
            const Switches second{first[1], first[2], first[0]};
            int visits = 0;
            host.password = [&](PasswordEntry& entry) {
                turn(entry, visits == 0 ? Switches() : second, first);
                entry.switchToAdvanced = visits++ == 0;
                return enterSecret(entry);
            };
            host.key = [&](KeyEntry& entry) {
                turn(entry, first, second);
                entry.switchToNormal = !endsWithKey;
                return enterKey(entry.keyLength, entry.ivLength)(entry);
            };
            const auto job = run();
            ASSERT_TRUE(job);
            const crypto::FileJobRequest& request = job->request;
            EXPECT_EQ((Switches{request.seal, request.useSalt, job->rewriteOutput}),
                      endsWithKey ? second : first);
            EXPECT_EQ(request.passwordMode, !endsWithKey);
            EXPECT_EQ(request.password.view(), endsWithKey ? "" : "secret");
            EXPECT_EQ(request.key, endsWithKey ? SecretBytes(32, 1) : SecretBytes());
            EXPECT_EQ(request.iv, endsWithKey ? SecretBytes(16, 2) : SecretBytes());
            EXPECT_EQ(request.existing, crypto::ExistingOutput::Keep);
        }
}

/// An offer that is taken asks nothing, but looks at what stands there by now.
TEST_P(JobRequestTest, LooksOnceMoreForAnOffer)
{
    host.input = path("in.txt");
    host.output = path("new");
    host.password = enterSecret;
    auto request = run();
    ASSERT_TRUE(request);
    request->request.existing = crypto::ExistingOutput::RemoveFirst; // as it was then
    const auto again = JobRequest(GetParam(), host, host).runAgain(*request);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->request.existing, crypto::ExistingOutput::Keep);
    folder.write("new", "");
    EXPECT_FALSE(JobRequest(GetParam(), host, host).runAgain(*request));
}

} // namespace
