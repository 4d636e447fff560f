#include "common/path/UrlPath.h"

#include "common/path/PathText.h"
#include "lib/platform/Path.h"

namespace thisapp {

QString urlPath(const QUrl& url)
{
    if (!url.isLocalFile())
        return {};
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return pathText(tessaly::platform::pathFromUrl(url.host().toStdString(),
                                                   QByteArray::fromPercentEncoding(encoded).toStdString()));
}

} // namespace thisapp
