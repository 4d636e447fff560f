#include "common/path/UrlPath.h"

#include "common/path/PathText.h"
#include "lib/platform/Path.h"

#include <QDir>
#include <QSysInfo>

namespace thisapp {

QString urlPath(const QUrl& url)
{
    const QString host = url.host();
    const bool isHere =
        url.isLocalFile() &&
        (host.isEmpty() || host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
         host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0);
    if (!isHere)
        return {};
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return QDir::toNativeSeparators(
        pathText(tessaly::platform::pathFromNative(QByteArray::fromPercentEncoding(encoded).toStdString())));
}

} // namespace thisapp
