#include "app/window/FolderOpener.h"

#include "app/job/RequestFacts.h"
#include "common/path/PathText.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <QByteArray>
#include <QDesktopServices>

#include <filesystem>
#include <system_error>

namespace thisapp {

using namespace tessaly;

QUrl folderOf(const QString& text)
{
    std::error_code error;
    const auto file = std::filesystem::absolute(textPath(meantPath(text)), error);
    const std::filesystem::path folder = file.parent_path();
    if (text.isEmpty() || error || platform::fileStatus(folder).kind != platform::FileKind::Directory)
        return {};
    // From the bytes, as a name need not be UTF-8.
    const QByteArray bytes = QByteArray::fromStdString(platform::urlText(folder));
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/:@!$&'()*+,;="));
}

void openFolder(const QUrl& folder)
{
    if (!folder.isEmpty())
        QDesktopServices::openUrl(folder);
}

} // namespace thisapp
