#include "app/window/FolderOpener.h"

#include "app/job/RequestFacts.h"
#include "common/path/PathText.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <QByteArray>
#include <QDesktopServices>

#include <filesystem>

namespace thisapp {

using namespace tessaly;

QUrl folderOf(const QString& text)
{
    const std::filesystem::path folder = platform::absolutePath(textPath(meantPath(text))).parent_path();
    if (platform::fileStatus(folder).kind != platform::FileKind::Directory)
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
