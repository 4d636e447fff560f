#include "app/queue/QueueLook.h"

#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"

#include <QDate>

#include <system_error>

namespace thisapp {

using namespace tessaly;

QueueLook lookAtFiles(const QStringList& texts)
{
    QueueLook look;
    for (const QString& text : texts) {
        const std::filesystem::path named = textPath(meantPath(text));
        std::error_code error;
        const std::filesystem::path path = std::filesystem::absolute(named, error).lexically_normal();
        switch (io::checkInput(named)) {
        case io::InputCheck::Usable:
            look.files.push_back({error ? named : path, platform::fileStatus(named)});
            break;
        case io::InputCheck::NotRegular:
            look.isFolderLeftOut = true;
            break;
        case io::InputCheck::NotFound:
            look.missing += pathText(named.filename());
            break;
        }
    }
    return look;
}

EntryLook lookAtEntry(const std::filesystem::path& input, NamingSettings naming)
{
    naming.autogenerate = true;
    EntryLook look;
    look.output = textPath(outputPath(pathText(input), naming, QDate::currentDate()));
    look.facts = lookAtRequest(input, look.output);
    look.atOutput = platform::fileStatus(look.output);
    return look;
}

} // namespace thisapp
