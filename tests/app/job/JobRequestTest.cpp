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
    QString input, output, chosenInput, chosenOutput;
    std::function<bool(PasswordEntry&)> password = [](PasswordEntry&) { return false; };
    std::function<bool(KeyEntry&)> key = [](KeyEntry&) { return false; };
    OnEncrypted onEncrypted = OnEncrypted::Encrypt;
    bool engine = true;
    bool answers = true;
    std::pair<Area, std::string> message;
    QString dialogTitle;
    std::pair<int, int> counted;

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
    QString chooseInput(const QString& title) override { return dialogTitle = title, chosenInput; }
    QString chooseOutput(const QString& title) override { return dialogTitle = title, chosenOutput; }
    OnEncrypted askAboutEncrypted(int encrypted, int all) override
    {
        counted = {encrypted, all};
        return onEncrypted;
    }
    bool enterPassword(PasswordEntry& entry) override { return password(entry); }
    bool enterKeyAndIv(KeyEntry& entry) override { return key(entry); }
    bool prepareEngine(Operation, const AlgSelection&) override { return engine; }
    void showMessage(Area area, Message text) override { message = {area, text.now().toStdString()}; }
};

class JobRequestTest : public ::testing::TestWithParam<Operation>
{
protected:
    /// The text of the operation that is tested.
    const char* pick(const char* encryption, const char* decryption) const
    {
        return GetParam() == Operation::Encrypt ? encryption : decryption;
    }

    void expectRefusal(Area area, const std::string& text)
    {
        host.message = {};
        EXPECT_FALSE(JobRequest(GetParam(), host, host).run());
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

INSTANTIATE_TEST_SUITE_P(, JobRequestTest, ::testing::Values(Operation::Encrypt, Operation::Decrypt),
                         [](const auto& row) {
                             return row.param == Operation::Encrypt ? "Encrypt" : "Decrypt";
                         });

/// Everything is wrong at first; each line mends one thing, and the next check speaks.
TEST_P(JobRequestTest, ChecksInOrderAndChangesNothing)
{
    host.running = true;
    host.selected = {};
    host.engine = false;
    expectRefusal(Area::Progress, "Encryption/Decryption already running.");
    host.running = false;
    const char* noAlgorithm =
        pick("Encryption algorithm is not defined.", "Decryption algorithm is not defined.");
    expectRefusal(Area::Progress, noAlgorithm);
    host.selected.library = 1;
    expectRefusal(Area::Progress, noAlgorithm);
    host.selected = DefaultAlgSelection;
    host.input = "  ";
    expectRefusal(Area::Input, pick("File to encrypt is not defined.", "File to decrypt is not defined."));
    EXPECT_EQ(host.dialogTitle, pick("Select file to encrypt", "Select file to decrypt"));
    host.chosenInput = path("missing");
    host.answers = false;
    expectRefusal(Area::Input, "The file system does not answer.");
    host.answers = true;
    expectRefusal(Area::Input, pick("File to encrypt is not found.", "File to decrypt is not found."));
    EXPECT_EQ(host.input, path("missing"));
    host.input = path("");
    expectRefusal(Area::Input, "The input is not a regular file.");
    host.input = " " + path("in.txt") + " ";
    expectRefusal(Area::Output, "Output file is not defined.");
    EXPECT_EQ(host.dialogTitle, "Define output file");
    host.chosenOutput = path("IN.txt");
    expectRefusal(Area::Result, "Output file name matches the name of the input file");
    host.output = path("");
    expectRefusal(Area::Result, "The output is not a regular file.");
    host.output = path("no folder/out");
    expectRefusal(Area::Result, "The output folder is not found: " + (folder / "no folder"));
    host.output = path("out.txt");
    expectRefusal(Area::Result, "Password not defined");
    host.password = [](PasswordEntry&) { return true; }; // accepted, but empty
    expectRefusal(Area::Result, "Password not defined");
    host.password = [](PasswordEntry& entry) { return entry.switchToAdvanced = true; };
    host.key = [](KeyEntry& entry) {
        return entry.key = SecretBytes(31, 1), entry.iv = SecretBytes(15, 2), true;
    };
    expectRefusal(Area::Result, "Invalid IV size. Entered 15 bytes");
    host.key = [](KeyEntry& entry) {
        return entry.key = SecretBytes(31, 1), entry.iv = SecretBytes(16, 2), true;
    };
    expectRefusal(Area::Result, "Invalid key size. Entered 16 bytes"); // the size of the IV
    host.key = [](KeyEntry& entry) {
        return entry.key = SecretBytes(32, 1), entry.iv = SecretBytes(16, 2), true;
    };
    expectRefusal(Area::Result,
                  pick("Failed to prepare encryption engine.", "Failed to prepare decryption engine."));
    host.engine = true;
    expectRefusal(Area::Result, "Output file already exists! A 'not rewrite' option has been selected.");

    host.password = [](PasswordEntry& entry) {
        return entry.seal = entry.rewriteOutput = entry.switchToAdvanced = true;
    };
    const auto request = JobRequest(GetParam(), host, host).run();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->operation, GetParam());
    EXPECT_EQ(request->request.input, folder.at("in.txt"));
    EXPECT_FALSE(request->request.passwordMode);
    EXPECT_EQ(request->request.key.size(), 32U);
    EXPECT_TRUE(request->request.seal && request->rewriteOutput);
    EXPECT_EQ(request->request.existing, crypto::ExistingOutput::RemoveFirst);
    EXPECT_EQ(test::readFile(folder / "out.txt"), "former output") << "the worker removes it";
}

TEST_P(JobRequestTest, AsksOnceForAllFilesOfAList)
{
    host.output = path("out.txt");
    const QStringList names{"a.txt", "b.ENC", "c"};
    QStringList asked;
    host.password = [&asked](PasswordEntry& entry) {
        asked = entry.names;
        entry.password = SecretText("secret");
        return true;
    };
    const bool encrypts = GetParam() == Operation::Encrypt;
    for (const OnEncrypted answer : {OnEncrypted::Cancel, OnEncrypted::LeaveOut}) {
        host.onEncrypted = answer;
        asked.clear();
        JobRequest request(GetParam(), host, host);
        EXPECT_EQ(request.runForList(names).has_value(), !encrypts || answer != OnEncrypted::Cancel);
        EXPECT_EQ(request.onEncrypted(), encrypts ? answer : OnEncrypted::Encrypt);
        EXPECT_EQ(asked, encrypts && answer == OnEncrypted::Cancel ? QStringList() : names);
    }
    EXPECT_EQ(host.counted, encrypts ? std::pair(1, 3) : std::pair(0, 0));
    folder.write("x.enc", "");
    host.input = path("x.enc");
    host.output = path("x");
    host.onEncrypted = OnEncrypted::Cancel;
    EXPECT_EQ(JobRequest(GetParam(), host, host).run().has_value(), !encrypts);
}

/// "in.txt" and "in.txt " are two files; to take one for the other would delete the wrong one. What a
/// text means is settled once.
TEST_P(JobRequestTest, TakesATextThatNamesAFileAsItStands)
{
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.at(""));
    folder.write("  ", "input");
    host.password = [](PasswordEntry& entry) {
        entry.rewriteOutput = true;
        entry.password = SecretText("secret");
        return true;
    };
    folder.write("in.txt ", "input");
    folder.write("out.txt ", "former output");
    struct
    {
        const char *inputText, *outputText, *input, *output;
    } const cases[] = {
        {"in.txt ", "out.txt ", "in.txt ", "out.txt "},
        {"in.txt  ", "out.txt  ", "in.txt", "out.txt"},
        {"in.txt", "new ", "in.txt", "new"},
        {"  ", "new", "  ", "new"},
    };
    for (const auto& c : cases) {
        host.input = c.inputText;
        host.output = c.outputText;
        const auto data = JobRequest(GetParam(), host, host).run();
        ASSERT_TRUE(data) << host.message.second;
        EXPECT_EQ(data->request.input, c.input);
        EXPECT_EQ(data->request.output, c.output);
    }
    std::filesystem::current_path(before);
}

TEST_P(JobRequestTest, GoesBackAndForthBetweenTheDialogs)
{
    host.input = path("in.txt");
    host.output = path("new");
    using Switches = std::array<bool, 3>; // seal, salt, rewriting
    for (const int bits : {0b001, 0b010, 0b100, 0b011, 0b101, 0b110})
        for (const bool endsWithKey : {false, true}) {
            const Switches first{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
            const Switches second{first[1], first[2], first[0]};
            const auto turn = [](auto& entry, const Switches& before, const Switches& after) {
                EXPECT_EQ((Switches{entry.seal, entry.useSalt, entry.rewriteOutput}), before);
                std::tie(entry.seal, entry.useSalt, entry.rewriteOutput) = std::tuple_cat(after);
            };
            int visits = 0;
            host.password = [&](PasswordEntry& entry) {
                turn(entry, visits == 0 ? Switches() : second, first);
                entry.password = SecretText("secret");
                entry.switchToAdvanced = visits++ == 0;
                return true;
            };
            host.key = [&](KeyEntry& entry) {
                EXPECT_TRUE(entry.keyLength == 32 && entry.ivLength == 16);
                turn(entry, first, second);
                entry.key = SecretBytes(32, 1);
                entry.iv = SecretBytes(16, 2);
                entry.switchToNormal = !endsWithKey;
                return true;
            };
            const auto job = JobRequest(GetParam(), host, host).run();
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

/// However long the questions took: what stands there by then counts.
TEST_P(JobRequestTest, LooksOnceMoreAfterTheQuestions)
{
    struct
    {
        std::function<void(const test::TempFolder&)> happens;
        const char* message;
    } const cases[] = {
        {[](const auto& dir) { fs::remove(dir / "a"); },
         pick("File to encrypt is not found.", "File to decrypt is not found.")},
        {[](const auto& dir) { dir.write("b", "new"); },
         "Output file already exists! A 'not rewrite' option has been selected."},
        {[](const auto& dir) { fs::create_hard_link(dir / "a", dir / "b"); },
         "Output file name matches the name of the input file"},
        {[](const auto& dir) { fs::create_directory(dir / "b"); }, "The output is not a regular file."},
    };
    host.input = path("a");
    host.output = path("b");
    const auto ask = [this](const std::function<void(const test::TempFolder&)>& happens) {
        fs::remove(folder / "b");
        folder.write("a", "input");
        host.password = [this, happens](PasswordEntry& entry) {
            happens(folder);
            entry.password = SecretText("secret");
            return true;
        };
        return JobRequest(GetParam(), host, host).run();
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(ask(c.happens));
        EXPECT_EQ(host.message, std::pair(Area::Result, std::string(c.message)));
    }
    // An offer that is taken asks nothing, but looks, too.
    auto request = ask([](const auto&) {});
    ASSERT_TRUE(request);
    request->request.existing = crypto::ExistingOutput::RemoveFirst; // as it was then
    const auto again = JobRequest(GetParam(), host, host).runAgain(*request);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->request.existing, crypto::ExistingOutput::Keep);
    folder.write("b", "new");
    EXPECT_FALSE(JobRequest(GetParam(), host, host).runAgain(*request));
}

TEST_P(JobRequestTest, AsksAsTheSettingsSay)
{
    const bool encrypting = GetParam() == Operation::Encrypt;
    for (const bool value : {false, true}) {
        CAppSettings settings;
        for (const char* key : {"SealFiles", "UseSalt", "RewriteOutputFile", "ShowAdvancedPasswordOptions",
                                "ShowPassword", "UseConfirmPassword"})
            settings.setValue(key, value);
        settings.sync();
        host.input = path("in.txt");
        host.output = path("new");
        host.password = [&](PasswordEntry& entry) {
            EXPECT_EQ(entry.seal, encrypting && value);
            EXPECT_EQ(entry.useSalt, encrypting && value);
            EXPECT_EQ(entry.rewriteOutput, value);
            EXPECT_EQ(entry.showAdvancedOptions, value);
            EXPECT_EQ(entry.showPassword, value);
            EXPECT_EQ(entry.useConfirmPassword, !encrypting || value);
            return false;
        };
        expectRefusal(Area::Result, "Password not defined");
    }
}

} // namespace
