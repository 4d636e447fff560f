#include "cli/Message.h"

#include "cli/StandardOutput.h"
#include "common/errors/ErrorTexts.h"
#include "lib/err/CErrMsgBuilder.h"
#include "lib/logger/LogText.h"
#include "lib/platform/StandardStreams.h"

#include <cstdio>

namespace cli {

void complain(const std::string& message)
{
    std::string line = "quillet-cli: ";
    tessaly::logger::appendOneLine(line, message);
    std::fprintf(stderr, "%s\n", line.c_str());
}

ExitCode tell(const std::string& message)
{
    std::string line;
    tessaly::logger::appendOneLine(line, message);
    return print(line + '\n');
}

ExitCode print(const std::string& text)
{
    StandardOutput out;
    const auto count = static_cast<std::int64_t>(text.size());
    if (out.write(text.data(), count) == count)
        return Done;
    if (!tessaly::platform::isClosedPipe(out.lastError()))
        complain(errorLine("Failed to write.", tessaly::crypto::CryptoResult(out.lastError())) +
                 ". Standard output could not be written");
    return Failed;
}

std::string errorLine(const std::string& sentence, const tessaly::crypto::CryptoResult& result)
{
    const thisapp::ErrorTexts texts;
    return tessaly::err::internal::CErrMsgBuilder<char>(texts).build(sentence, result.first(),
                                                                     result.second());
}

} // namespace cli
