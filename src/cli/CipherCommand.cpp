#include "cli/CipherCommand.h"

#include "cli/Message.h"
#include "cli/Plan.h"
#include "cli/ProgressLine.h"
#include "cli/Report.h"
#include "cli/Secrets.h"
#include "cli/StandardInput.h"
#include "cli/StandardOutput.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "crypto/job/AlgorithmSearch.h"
#include "io/NullOutput.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/StandardStreams.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;
using crypto::FileJobOutcome;
using crypto::FileJobRequest;
using crypto::JobStep;

namespace {

/// What Ctrl-C stops: the engine at work, if there is one.
using Stop = sync::internal::SafeData<sync::Locker, std::function<void()>>;

/// One file of the command on its way.
class Task
{
public:
    Task(const Arguments& arguments, const Item& item, FileJobRequest request, ProgressLine& progress,
         Stop& stop)
        : m_arguments(arguments), m_request(std::move(request)), m_progress(progress), m_stop(stop)
    {
        m_request.input = platform::pathFromNative(item.input);
        m_request.output = platform::pathFromNative(item.output);
        m_request.useSalt = arguments.salt;
        m_request.seal = arguments.seal;
        m_request.existing =
            arguments.force ? crypto::ExistingOutput::ReplaceAtEnd : crypto::ExistingOutput::Keep;
        m_result.input = item.input;
        useStreams(item);
    }

    FileResult run()
    {
        if (spool() && findAlgorithm())
            m_result.outcome = m_arguments.command == Command::Encrypt
                                   ? runWith<cryptopp::CEncryptorFactory, crypto::ISymmetricEncryptor>()
                                   : runWith<cryptopp::CDecryptorFactory, crypto::ISymmetricDecryptor>();
        if (m_request.sink == &m_standardOutput && m_result.outcome.done())
            if (const ResultCode closed = platform::closeStandardOutput(); !closed.ok())
                m_result.outcome.result = {err::WriteStreamFailed, closed};
        m_result.isCutOff = m_standardOutput.hasWritten() && !m_result.outcome.done();
        return std::move(m_result);
    }

    /// Without its secrets after the run.
    const FileJobRequest& request() const { return m_request; }

private:
    /// Where a stream has no name, its path tells what it is.
    void useStreams(const Item& item)
    {
        if (item.input == StandardStream) {
            m_request.source = &m_spool;
            m_request.input = m_result.input = "(standard input)";
        }
        if (item.output == StandardStream) {
            m_request.sink = &m_standardOutput;
            m_request.output = "(standard output)";
        } else if (item.output.empty()) {
            m_request.sink = &m_nowhere;
        }
    }

    bool fail(const CryptoResult& result, JobStep step)
    {
        m_result.outcome.result = result;
        m_result.outcome.step = step;
        return result.ok();
    }

    bool spool()
    {
        if (!m_request.source || fail(spoolStandardInput(m_spool), JobStep::Process))
            return true;
        if (m_result.outcome.failedAtOutput())
            m_result.failedStep = "Standard input could not be kept in the folder " +
                                  platform::nativeText(temporaryFolder()) + '.';
        return false;
    }

    bool findAlgorithm()
    {
        m_result.algorithmId = m_arguments.algorithmId;
        if (m_result.algorithmId)
            return true;
        crypto::FoundAlgorithm found = crypto::findAlgorithm(m_request, m_progress);
        m_result.outcome.cancelled = found.cancelled;
        m_result.isEmpty = found.result.ok() && !found.cancelled && !found.algorithmId;
        m_result.algorithmId = found.algorithmId;
        m_request.root = std::move(found.root);
        const bool isOpened = found.result.module != err::CategorySystem;
        return fail(found.result, isOpened ? JobStep::Process : JobStep::OpenInput) && !found.cancelled;
    }

    template <class Factory, class Cipher>
    FileJobOutcome runWith()
    {
        std::unique_ptr<Cipher> cipher;
        const CryptoResult made = Factory().create(
            crypto::CryptoPPLibraryId, m_result.algorithmId.value_or(crypto::DefaultAlgorithmId), &cipher);
        FileJobOutcome outcome;
        outcome.step = JobStep::Process;
        outcome.result = made;
        if (!made.ok())
            return outcome;
        m_stop.set([&cipher] { cipher->stop(); });
        outcome = crypto::runFileJob(*cipher, m_request, m_progress);
        m_stop.set({});
        return outcome;
    }

    const Arguments& m_arguments;
    FileJobRequest m_request;
    ProgressLine& m_progress;
    Stop& m_stop;
    crypto::Spool m_spool;
    StandardOutput m_standardOutput;
    io::NullOutput m_nowhere;
    FileResult m_result;
};

/// Usage errors apart, everything that keeps the work from its start is told here.
std::optional<ExitCode> prepareSecret(const Arguments& arguments, FileJobRequest& secret)
{
    std::string problem;
    const SecretOutcome outcome = gatherSecret(arguments, secret, problem);
    if (outcome == SecretOutcome::Interrupted || platform::Interrupts::happened()) {
        complain("interrupted");
        return Interrupted;
    }
    if (outcome == SecretOutcome::NotAsked) {
        complain("no password: name --password-file, or --key-file and --iv-file, or run it on a terminal");
        return Usage;
    }
    if (outcome == SecretOutcome::Unusable) {
        complain(problem);
        return Failed;
    }
    return {};
}

ExitCode runTask(const Arguments& arguments, const Item& item, FileJobRequest secret, std::string label,
                 Stop& stop)
{
    const bool isInTheWay = item.output == StandardStream && platform::isOutputTerminal();
    std::optional<ProgressLine> progress(std::in_place, std::move(label), !arguments.quiet && !isInTheWay);
    Task task(arguments, item, std::move(secret), *progress, stop);
    const FileResult result = task.run();
    progress.reset(); // its line is gone before another comes
    return report(task.request(), result, arguments);
}

/// Which file was cut off, and how many came after it.
void tellInterruption(const std::vector<Item>& items, std::size_t at)
{
    const std::size_t left = items.size() - at - 1;
    std::string line = "interrupted";
    if (items.size() > 1)
        line += " in " + items[at].input;
    if (left > 0)
        line += "; " + std::to_string(left) + (left == 1 ? " file" : " files") + " not tried";
    complain(line);
}

ExitCode runItems(const Arguments& arguments, const std::vector<Item>& items, Stop& stop)
{
    FileJobRequest secret;
    if (const std::optional<ExitCode> ended = prepareSecret(arguments, secret))
        return *ended;
    ExitCode worst = Done;
    for (std::size_t i = 0; i < items.size() && worst != Interrupted; ++i) {
        const bool isLast = i + 1 == items.size();
        std::string label =
            items.size() > 1 ? progressLabel(i + 1, items.size(), items[i].input) : std::string();
        worst = std::max(
            worst, runTask(arguments, items[i], isLast ? std::move(secret) : secret, std::move(label), stop));
        if (worst == Interrupted)
            tellInterruption(items, i);
    }
    return worst;
}

} // namespace

ExitCode runCipherCommand(const Arguments& arguments)
{
    Stop stop;
    const platform::Interrupts interrupts([&stop] {
        stop.with([](const std::function<void()>& stopEngine) {
            if (stopEngine)
                stopEngine();
        });
    });
    const Plan plan = makePlan(arguments);
    for (const std::string& problem : plan.problems)
        complain(problem);
    const ExitCode left = plan.problems.empty() ? Done : Failed;
    return plan.items.empty() ? left : std::max(left, runItems(arguments, plan.items, stop));
}

} // namespace cli
