#include "app/window/InputLook.h"

#include "app/job/RequestFacts.h"
#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "lib/platform/File.h"

#include <QDate>

namespace thisapp {

using namespace tessaly;

InputFacts lookAtInput(const QString& text, const NamingSettings& naming)
{
    InputFacts facts;
    facts.path = meantPath(text);
    if (facts.path.isEmpty())
        return facts;
    const std::filesystem::path path = textPath(facts.path);
    facts.check = io::checkInput(path);
    if (!facts.isUsable())
        return facts;
    facts.size = platform::fileStatus(path).size;
    facts.proposal = outputPath(facts.path, naming, QDate::currentDate());
    return facts;
}

} // namespace thisapp
