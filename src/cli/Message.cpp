#include "cli/Message.h"

#include "common/errors/ErrorTexts.h"
#include "lib/err/CErrMsgBuilder.h"
#include "lib/logger/LogText.h"

#include <cstdio>

namespace cli {

void complain(const std::string& message)
{
    std::string line = "quillet-cli: ";
    tessaly::logger::appendOneLine(line, message);
    std::fprintf(stderr, "%s\n", line.c_str());
}

std::string errorLine(const std::string& sentence, const tessaly::crypto::CryptoResult& result)
{
    const thisapp::ErrorTexts texts;
    return tessaly::err::internal::CErrMsgBuilder<char>(texts).build(sentence, result.first(),
                                                                     result.second());
}

} // namespace cli
