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

RequestFacts lookAtRequest(const QString& inputText, const QString& outputText)
{
    RequestFacts facts;
    facts.input = textPath(meantPath(inputText));
    facts.output = textPath(meantPath(outputText));
    facts.inputCheck = io::checkInput(facts.input);
    facts.inputSize = platform::fileStatus(facts.input).size;
    if (!facts.output.empty())
        facts.outputCheck = io::checkOutput(facts.input, facts.output);
    return facts;
}

} // namespace thisapp
