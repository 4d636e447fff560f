#include "app/queue/QueueLook.h"

#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "lib/platform/Path.h"

#include <QDate>

namespace thisapp {

using namespace tessaly;

namespace {

/// One path for each file, however it was named; its own name may be that of a link. A ".." behind a link
/// leads to where the system says.
std::filesystem::path onePath(const std::filesystem::path& named)
{
    const std::filesystem::path whole = platform::absolutePath(named);
    return platform::realFolder(whole.parent_path()) / whole.filename();
}

} // namespace

QueueLook lookAtFiles(const QStringList& texts)
{
    QueueLook look;
    for (const QString& text : texts) {
        const std::filesystem::path named = textPath(meantPath(text));
        switch (io::checkInput(named)) {
        case io::InputCheck::Usable:
            look.files.push_back({onePath(named), platform::fileStatus(named)});
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
