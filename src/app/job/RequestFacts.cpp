#include "app/job/RequestFacts.h"

#include "common/path/PathText.h"
#include "lib/platform/File.h"

namespace thisapp {

using namespace tessaly;

QString meantPath(const QString& text)
{
    const QString trimmed = text.trimmed();
    return text != trimmed && platform::fileStatus(textPath(text)).exists() ? text : trimmed;
}

RequestFacts lookAtRequest(const std::filesystem::path& input, const std::filesystem::path& output)
{
    RequestFacts facts;
    facts.inputCheck = io::checkInput(input);
    facts.inputSize = platform::fileStatus(input).size;
    if (!output.empty())
        facts.outputCheck = io::checkOutput(input, output);
    return facts;
}

} // namespace thisapp
