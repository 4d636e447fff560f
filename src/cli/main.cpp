#include "cli/AlgorithmList.h"
#include "cli/CipherCommand.h"
#include "cli/CommandLine.h"
#include "cli/Message.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Process.h"

#include <cstdio>
#include <exception>

namespace {

/// A closed pipe or a full disk must not pass for success.
cli::ExitCode print(const std::string& text)
{
    const bool written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    if (!written)
        cli::complain("cannot write to standard output");
    return written ? cli::Done : cli::Failed;
}

cli::ExitCode run(int argc, char** argv)
{
    const cli::ParseOutcome parsed = cli::parseCommandLine(argc, argv);
    if (!parsed.arguments) {
        if (!parsed.answer.empty())
            return print(parsed.answer);
        cli::complain(parsed.problem + "; see quillet-cli --help");
        return cli::Usage;
    }
    if (parsed.arguments->command == cli::Command::Algorithms)
        return print(parsed.arguments->json ? cli::algorithmJson() : cli::algorithmTable());
    return cli::runCipherCommand(*parsed.arguments);
}

} // namespace

int main(int argc, char** argv)
{
    tessaly::platform::ignoreWriteSignals();
    tessaly::platform::disableCoreDumps();
    // The last resort: neither memory nor a thread may be had. It needs neither itself.
    try {
        return run(argc, argv);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "quillet-cli: %s\n", exception.what());
    } catch (...) {
        std::fputs("quillet-cli: unknown failure\n", stderr);
    }
    return cli::Failed;
}
