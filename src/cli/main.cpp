#include "cli/AlgorithmList.h"
#include "cli/CipherCommand.h"
#include "cli/CommandLine.h"
#include "cli/Message.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Process.h"
#include "lib/platform/StandardStreams.h"

#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

namespace {

cli::ExitCode run(const std::vector<std::string>& words)
{
    const cli::ParseOutcome parsed = cli::parseCommandLine(words);
    if (!parsed.arguments) {
        if (!parsed.answer.empty())
            return cli::print(parsed.answer);
        cli::complain(parsed.problem);
        return cli::Usage;
    }
    if (parsed.arguments->command == cli::Command::Algorithms)
        return cli::print(parsed.arguments->json ? cli::algorithmJson() : cli::algorithmTable());
    return cli::runCipherCommand(*parsed.arguments);
}

} // namespace

int main(int argc, char** argv)
{
    tessaly::platform::prepareStandardStreams();
    tessaly::platform::ignoreWriteSignals();
    tessaly::platform::disableCoreDumps();
    // The last resort: neither memory nor a thread may be had. It needs neither itself.
    try {
        return run(tessaly::platform::programArguments(argc, argv));
    } catch (const std::bad_alloc&) {
        std::fputs("quillet-cli: out of memory\n", stderr);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "quillet-cli: %s\n", exception.what());
    } catch (...) {
        std::fputs("quillet-cli: unknown failure\n", stderr);
    }
    return cli::Failed;
}
