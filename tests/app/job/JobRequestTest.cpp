#include "app/job/JobRequest.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <functional>

using namespace thisapp;
using namespace tessaly;

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
    OnEncrypted askAboutEncrypted(int, int) override { return onEncrypted; }
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
    host.password = [this, answer = host.password](PasswordEntry& entry) {
        std::filesystem::rename(folder.at("in.txt "), folder.at("moved"));
        return answer(entry);
    };
    host.input = "in.txt ";
    expectRefusal(Area::Result, pick("File to encrypt is not found.", "File to decrypt is not found."));
    std::filesystem::current_path(before);
}

TEST_P(JobRequestTest, GoesBackAndForthBetweenTheDialogs)
{
    host.input = path("in.txt");
    host.output = path("new");
    int visits = 0;
    host.password = [&visits](PasswordEntry& entry) {
        EXPECT_EQ(entry.useSalt, visits == 1) << "what the other dialog left";
        EXPECT_FALSE(entry.seal);
        entry.seal = true;
        if (visits++ == 0)
            return entry.switchToAdvanced = true;
        entry.password = SecretText("secret");
        return true;
    };
    host.key = [](KeyEntry& entry) {
        EXPECT_TRUE(entry.keyLength == 32 && entry.ivLength == 16);
        EXPECT_TRUE(entry.seal);
        entry.seal = false;
        return entry.switchToNormal = entry.useSalt = true;
    };
    const auto request = JobRequest(GetParam(), host, host).run();
    ASSERT_TRUE(request);
    EXPECT_EQ(visits, 2);
    EXPECT_TRUE(request->request.passwordMode && request->request.useSalt && request->request.seal);
    EXPECT_EQ(request->request.existing, crypto::ExistingOutput::Keep);
    EXPECT_EQ(request->request.password.view(), "secret");
    EXPECT_TRUE(request->request.key.empty());
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
