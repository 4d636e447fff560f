#include "app/i18n/TranslationFolders.h"

#include "common/path/PathText.h"
#include "lib/platform/Folders.h"
#include "lib/platform/Path.h"

#include <QDir>

namespace thisapp {

using namespace tessaly;

std::vector<std::wstring> translationFolders(const QString& programFolder)
{
    std::vector<std::wstring> folders;
    if (const std::string data = platform::dataFolder(); !data.empty())
        folders.push_back(platform::widePath(data + "/quillet/translations"));
    const QDir installed(programFolder + QStringLiteral("/../share/quillet/translations"));
    const QString own =
        installed.exists() ? installed.absolutePath() : programFolder + QStringLiteral("/translations");
    folders.push_back(platform::wideText(textPath(own)));
    return folders;
}

} // namespace thisapp
