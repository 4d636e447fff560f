#include "app/i18n/Translators.h"
#include "app/job/CFileJob.h"
#include "app/job/CMsgDispatcher.h"
#include "common/errors/ErrorText.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "lib/logger/Level.h"
#include "support/TempFolder.h"

#include <QEventLoop>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace thisapp;
namespace fs = std::filesystem;

/// ThreadSanitizer makes each round some ten times as slow.
#ifdef __SANITIZE_THREAD__
constexpr int Rounds = 200;
#else
constexpr int Rounds = 1000;
#endif
constexpr AlgSelection Aes{1, 252};
constexpr std::uint32_t Languages[] = {1031, 1033, 1036};

/// When the owner stops a job.
enum class Moment { AtOnce, WhenItHasStarted, WhenItIsAtWork, Never, Count };

/// As the window does it: what ends the wait for a job is the news of the end alone. Languages and the log
/// are switched meanwhile; the worker words its failures, and every part logs.
TEST(Races, TheWindowsJobStartsAndStopsManyTimes)
{
    const test::TempFolder folder;
    folder.write("in", std::string(1 << 20, 'x'));
    tessaly::i18n::TranslationManager translations(tessaly::platform::widePath(TRANSLATIONS_DIR), "quillet");
    ASSERT_TRUE(translations.load().ok());
    Translators translators(translations);
    tessaly::logger::FileLogging logging(folder / "log");

    tessaly::cryptopp::CEncryptorFactory encryptors;
    tessaly::cryptopp::CDecryptorFactory decryptors;
    CMsgDispatcher dispatcher;
    QEventLoop loop;
    CFileJob job(encryptors, decryptors, dispatcher);
    Moment stopAt = Moment::Never;
    int looks = 0;
    const auto hear = [&](Moment moment) {
        if (moment != stopAt || !job.isStoppable())
            return;
        for (int look = 0; look < looks; ++look)
            (void)job.progress();
        job.stop();
    };
    QObject::connect(&dispatcher, &CMsgDispatcher::notifyEncryptStarted, &loop,
                     [&] { hear(Moment::WhenItHasStarted); });
    QObject::connect(&dispatcher, &CMsgDispatcher::notifyEncryptProgress, &loop,
                     [&] { hear(Moment::WhenItIsAtWork); });
    QObject::connect(&dispatcher, &CMsgDispatcher::notifyEncryptFinished, &loop, &QEventLoop::quit);
    const auto run = [&](bool isEncryption, const char* output, const char* password) {
        SEncryptData data;
        data.operation = isEncryption ? Operation::Encrypt : Operation::Decrypt;
        data.selection = Aes;
        data.request.input = folder.at(isEncryption ? "in" : "encrypted");
        data.request.output = folder.at(output);
        data.request.password = tessaly::SecretText(password);
        data.request.cost = {1, 32, 4}; // the least that Argon2 takes, for the file that may be a sealed one
        EXPECT_TRUE(job.prepare(data.operation, Aes));
        EXPECT_TRUE(job.start(std::move(data)).ok());
        hear(Moment::AtOnce);
        loop.exec();
        job.finish();
        SEncryptData ended = job.data();
        job.clear();
        return ended;
    };
    ASSERT_TRUE(run(true, "encrypted", "right").outcome.done());
    int ended[3] = {};
    for (int round = 0; round < Rounds; ++round) {
        if (round % 20 == 0) { // it reads a file
            ASSERT_TRUE(translations.use(Languages[round % 3]).ok());
            translators.install();
        }
        logging.setLevel(round % 2 == 0 ? tessaly::logger::Trace : tessaly::logger::Off);
        logging.setLogFileUsed(round % 10 < 5);
        const bool isWrong = round % 3 == 1;
        stopAt = static_cast<Moment>(round % static_cast<int>(Moment::Count));
        looks = round / 4 % 100;
        const SEncryptData done = run(round % 3 == 0, "out", isWrong ? "wrong" : "right");
        SCOPED_TRACE(round);
        EXPECT_TRUE(done.request.password.empty());
        EXPECT_EQ(fs::exists(folder / "out"), done.outcome.done());
        EXPECT_EQ(done.errorText.empty(), done.outcome.result.ok());
        EXPECT_TRUE(stopAt != Moment::Never || done.outcome.done() == !isWrong);
        ++ended[done.outcome.done() ? 0 : done.outcome.cancelled ? 1 : 2];
        fs::remove(folder / "out");
    }
    for (const int count : ended)
        EXPECT_GT(count, Rounds / 20);
    logging.setLogFileUsed(false);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 3) << "input, encrypted and log";
}

} // namespace
