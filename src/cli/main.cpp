#include "cli/AlgorithmList.h"
#include "cli/CipherCommand.h"
#include "cli/CommandLine.h"
#include "cli/Message.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Process.h"

#include <cstdio>

namespace {

/// A closed pipe or a full disk must not pass for success.
cli::ExitCode print(const std::string& text)
{
    const bool written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    if (!written)
        cli::complain("cannot write to standard output");
    return written ? cli::Done : cli::Failed;
}

} // namespace

int main(int argc, char** argv)
{
    tessaly::platform::ignoreWriteSignals();
    tessaly::platform::disableCoreDumps();

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
