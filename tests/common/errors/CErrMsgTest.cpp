#include "common/errors/CErrMsg.h"

#include "common/errors/ErrorText.h"
#include "common/errors/JobStepText.h"
#include "lib/err/ErrorCodes.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include <cerrno>
#include <map>
#include <string>

namespace {

using namespace tessaly;

TEST(CErrMsg, KnowsItsTextsAndNoOthers)
{
    std::map<std::uint32_t, std::string> texts;
    for (const test::Row& row : test::dataRows("error_texts.txt"))
        texts[static_cast<std::uint32_t>(std::stoul(row.at(0)))] = row.at(1);
    const thisapp::CErrMsg messages;
    std::string text;
    for (std::uint32_t code = 0; code < 5000; ++code) {
        EXPECT_EQ(messages.lookup(5, code, text), texts.contains(code)) << code;
        EXPECT_EQ(text, texts[code]);
        EXPECT_FALSE(messages.lookup(53, code, text));
    }
    ASSERT_TRUE(messages.lookup(1, ENOENT, text));
    EXPECT_EQ(text, "No such file or directory");
    EXPECT_FALSE(messages.lookup(1, 99999, text));
    EXPECT_FALSE(messages.lookup(0, 0, text));
    EXPECT_EQ(thisapp::errorText({err::ReadStreamFailed, err::system(EIO)}),
              "Reading data stream failed (error: 1/5)");
}

TEST(CErrMsg, TranslatesTheProgramsOwnTextsAlone)
{
    struct : QTranslator
    {
        QString translate(const char*, const char* text, const char*, int) const override
        {
            return QString(text).toUpper();
        }
        bool isEmpty() const override { return false; }
    } shouting;
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    ASSERT_TRUE(QCoreApplication::installTranslator(&shouting));
    std::string text;
    EXPECT_TRUE(thisapp::CErrMsg().lookup(5, 41, text));
    EXPECT_EQ(text, "FILE NOT FOUND");
    EXPECT_TRUE(thisapp::CErrMsg().lookup(1, ENOENT, text));
    EXPECT_EQ(text, "No such file or directory");
}

TEST(JobStepText, TellsTheStepAndTheFile)
{
    using crypto::JobStep;
    const std::tuple<JobStep, crypto::CryptoResult, const char*, const char*> rows[] = {
        {JobStep::OpenInput, err::system(ENOENT), "The input file %1 could not be opened.", "in"},
        {JobStep::RemoveFormerOutput, err::system(EPERM), "The former output file %1 could not be removed.",
         "out"},
        {JobStep::CreateOutput, err::WriteStreamFailed, "The output file %1 could not be created.", "out"},
        {JobStep::Process, err::ReadStreamFailed, "The input file %1 could not be read.", "in"},
        {JobStep::Process, err::WriteStreamFailed, "The output file %1 could not be written.", "out"},
        {JobStep::Process, err::CheckValueDiffers, "The file %1 could not be processed.", "in"},
        {JobStep::StoreOutput, err::WriteStreamFailed, "The output file %1 could not be stored.", "out"},
    };
    crypto::FileJobRequest request;
    request.input = "in";
    request.output = "out";
    for (const auto& [step, result, text, file] : rows) {
        crypto::FileJobOutcome outcome;
        outcome.step = step;
        outcome.result = result;
        EXPECT_STREQ(thisapp::failedStepText(outcome), text);
        EXPECT_EQ(thisapp::failedFile(outcome, request), file) << text;
    }
}

} // namespace
