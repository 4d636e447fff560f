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

/// One job from start to end, as the window does it: what ends the wait is the news of the end alone.
class Owner
{
public:
    Owner() : m_job(m_encryptors, m_decryptors, m_dispatcher)
    {
        QObject::connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptStarted, &m_loop,
                         [this] { hear(Moment::WhenItHasStarted); });
        QObject::connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptProgress, &m_loop,
                         [this] { hear(Moment::WhenItIsAtWork); });
        QObject::connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptFinished, &m_loop, &QEventLoop::quit);
    }

    SEncryptData run(SEncryptData request, Moment moment, int looks)
    {
        m_moment = moment;
        m_looks = looks;
        EXPECT_TRUE(m_job.prepare(request.operation, Aes));
        EXPECT_TRUE(m_job.start(std::move(request)).ok());
        hear(Moment::AtOnce);
        m_loop.exec();
        m_job.finish();
        SEncryptData ended = m_job.data();
        m_job.clear();
        return ended;
    }

private:
    void hear(Moment moment)
    {
        if (moment != m_moment || !m_job.isStoppable())
            return;
        for (int look = 0; look < m_looks; ++look)
            (void)m_job.progress();
        m_job.stop();
    }

    tessaly::cryptopp::CEncryptorFactory m_encryptors;
    tessaly::cryptopp::CDecryptorFactory m_decryptors;
    CMsgDispatcher m_dispatcher;
    QEventLoop m_loop;
    Moment m_moment = Moment::Never;
    int m_looks = 0;
    CFileJob m_job;
};

/// Languages and the log are switched meanwhile; the worker words its failures, and every part logs.
TEST(Races, TheWindowsJobStartsAndStopsManyTimes)
{
    const test::TempFolder folder;
    folder.write("in", std::string(1 << 20, 'x'));
    tessaly::i18n::TranslationManager translations(tessaly::platform::widePath(TRANSLATIONS_DIR), "quillet");
    ASSERT_TRUE(translations.load().ok());
    Translators translators(translations);
    tessaly::logger::FileLogging logging(folder / "log");
    Owner owner;
    const auto run = [&](bool isEncryption, const char* output, const char* password, Moment moment,
                         int looks) {
        SEncryptData data;
        data.operation = isEncryption ? Operation::Encrypt : Operation::Decrypt;
        data.selection = Aes;
        data.request.input = folder.at(isEncryption ? "in" : "encrypted");
        data.request.output = folder.at(output);
        data.request.password = tessaly::SecretText(password);
        data.request.cost = {1, 32, 4}; // the least that Argon2 takes, for the file that may be a sealed one
        return owner.run(std::move(data), moment, looks);
    };
    ASSERT_TRUE(run(true, "encrypted", "right", Moment::Never, 0).outcome.done());
    int ended[3] = {};
    for (int round = 0; round < Rounds; ++round) {
        if (round % 20 == 0) { // it reads a file
            ASSERT_TRUE(translations.use(Languages[round % 3]).ok());
            translators.install();
        }
        logging.setLevel(round % 2 == 0 ? tessaly::logger::Trace : tessaly::logger::Off);
        logging.setLogFileUsed(round % 10 < 5);
        const bool isWrong = round % 3 == 1;
        const auto moment = static_cast<Moment>(round % static_cast<int>(Moment::Count));
        const SEncryptData job =
            run(round % 3 == 0, "out", isWrong ? "wrong" : "right", moment, round / 4 % 100);
        SCOPED_TRACE(round);
        EXPECT_TRUE(job.request.password.empty());
        EXPECT_EQ(fs::exists(folder / "out"), job.outcome.done());
        EXPECT_EQ(job.errorText.empty(), job.outcome.result.ok());
        EXPECT_TRUE(moment != Moment::Never || job.outcome.done() == !isWrong);
        ++ended[job.outcome.done() ? 0 : job.outcome.cancelled ? 1 : 2];
        fs::remove(folder / "out");
    }
    for (const int count : ended)
        EXPECT_GT(count, Rounds / 20);
    logging.setLogFileUsed(false);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 3) << "input, encrypted and log";
}

} // namespace
